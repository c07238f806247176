// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RendererStyle.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <vector>

class QgsMapLayer;
class QgsProject;

namespace Orvane {

/// The named styles of a project's layers as renderer styles. Each name has a number, which the project keeps
/// and gives to no other name; a layer's default style is 0, "Standard".
class ProjectStyles
{
    Q_DECLARE_TR_FUNCTIONS(ProjectStyles)

public:
    /// project: not owned; outlives this object.
    explicit ProjectStyles(QgsProject& project);

    /// The number of the layer's current style.
    qint32 Of(const QgsMapLayer& layer);
    /// The number of a style that the layer has.
    qint32 NumberIn(const QgsMapLayer& layer, const QString& style);
    /// The name of the layer's style with that number; empty if it has none.
    QString NameIn(const QgsMapLayer& layer, qint32 number) const;
    /// Says to the user that these layers have no style of that number.
    QString RefusalText(qint32 number, const QStringList& layers) const;
    /// All names that layers of the project have now, but for the default style, sorted.
    std::vector<RendererStyle> Offered();

    /// A style of a layer has a new name. It takes its number along, unless the new name has one, or another
    /// layer has a style of the old name.
    void Rename(const QString& from, const QString& to);
    /// Reads the numbers of the project again, e.g. after another project was read.
    void Reset();

private:
    QString ShownName(qint32 number) const;
    qint32 NumberOf(const QString& name);
    bool IsUsed(const QString& name) const;
    void Keep();

    QgsProject& m_project;
    QStringList m_names; // that of the number 1 first
};

} // namespace Orvane
