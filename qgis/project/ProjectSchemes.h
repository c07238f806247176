// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class QgsProject;

namespace Orvane {

class ILayerStore;

/// Keeps the layer schemes of a layer store in a QGIS project, as an entry of its file:
///
///     {"version": 2, "current": "Night", "atOpening": "Night", "columns": ["Visible", ...],
///      "schemes": [{"name": "Night", "saved": "2026-05-01T12:30:00Z", "place": 0, "holds": ["flags"],
///                   "layers": {"12": [1, null, ...], ...}}]}
///
/// What a scheme has no value for is left out: "holds" of a whole scheme, "place" without an order of the
/// user's. Version 1, which has none of these, can be read.
///
/// Layers are known by their numbers in the store, which the project keeps too.
class ProjectSchemes
{
    Q_DECLARE_TR_FUNCTIONS(ProjectSchemes)

public:
    /// Neither is owned; both outlive this object.
    ProjectSchemes(QgsProject& project, ILayerStore& store) : m_project(project), m_store(store) { }

    /// Gives the store the schemes of the project, in place of its own, in one transaction. Call it after the
    /// rows of the layers were stored; values of other layers are left out. Raises
    /// HostError::SchemeTextDamaged for an entry that is not as above, and SchemeTextTooNew; the store then
    /// has no schemes. Raises errors of the store.
    void Read();

    /// True if the project has schemes.
    bool AreKept() const;

    /// Gives the project the schemes of the store, which marks it as changed if they differ from what it has.
    /// What Read could not read stays in the project, in the first free one of the entries
    /// "LayerSchemesUnread", "LayerSchemesUnread2" ...
    void Write();

private:
    void Clear();
    void KeepUnread();
    void Store(const QByteArray& text);

    QgsProject& m_project;
    ILayerStore& m_store;
    QString m_unread; // the text that Read has failed on
};

} // namespace Orvane
