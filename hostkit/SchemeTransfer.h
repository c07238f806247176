// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QtGlobal>

namespace Orvane {

class SqliteLayerDatabase;

/// Copies layer schemes from one layer database into another; which layers are the same, MatchLayers says.
class SchemeTransfer
{
public:
    /// Neither is owned; both outlive this object.
    SchemeTransfer(SqliteLayerDatabase& from, SqliteLayerDatabase& to);

    /// Adds to the receiving database the layers that it does not know, with all their properties.
    void AddMissingLayers();

    /// Copies each scheme with the values of the layers that the receiving database knows. A scheme of the
    /// same name is replaced, the others stay; the current scheme stays, if there was one.
    void CopySchemes();

private:
    void AddLayer(qint32 layerID, qint32 newLayerID);
    void CopyValues(qint32 schemeID, qint32 newSchemeID);

    SqliteLayerDatabase& m_from;
    SqliteLayerDatabase& m_to;
    QHash<qint32, qint32> m_matches; // LayerID there, LayerID here
};

} // namespace Orvane
