// SPDX-License-Identifier: MIT
#include "component/dialog/rows/RowDetails.h"

#include "component/common/HostInterface.h"
#include "component/common/Messages.h"
#include "component/controls/VisibleScalesTranslator.h"
#include "component/dialog/rows/LayerRow.h"
#include "component/model/CheckedColumns.h"
#include "component/model/LayerCursors.h"
#include "messages/NameInText.h"

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/ILayerSource.h>
#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QFontMetrics>
#include <QStringList>
#include <QToolTip>

namespace Orvane {

namespace {

constexpr int MostGroups = 5;
constexpr qsizetype LongestGroup = 60; // characters
constexpr int LongestSource = 70; // characters of middle width

void AppendLine(QString& lines, const QString& line)
{
    lines += QLatin1String("<br>") + line.toHtmlEscaped();
}

QStringList ReadGroupNames(IStyleEditorClient& client, qint32 layerID)
{
    const auto groups = OpenGroupsByID(client.GetDatabase());
    QStringList names;
    const auto rows = client.GetDatabase().OpenRecordset(LayerQueries::GroupsOfLayer(layerID));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        if (!SeekID(*groups, IntegerColumn(*rows, "GroupID")) || FlagIsSet(*groups, "Pseudo"))
            continue;
        if (names.size() == MostGroups) {
            names.append(QStringLiteral("…"));
            break;
        }
        names.append(NameInText(ToTextOrNone(groups->Field("Name")), LongestGroup));
    }
    return names;
}

void AppendScales(QString& lines, const LayerStyle& style)
{
    const VisibleScalesTranslator scales;
    const Value minimum = style.lsGet(Slot::MinVisScale);
    const Value maximum = style.lsGet(Slot::MaxVisScale);
    if (VisibleScalesTranslator::IsLimit(minimum))
        AppendLine(lines, TranslateMsg("Minimum scale: ^1", scales.toString(minimum)));
    if (VisibleScalesTranslator::IsLimit(maximum))
        AppendLine(lines, TranslateMsg("Maximum scale: ^1", scales.toString(maximum)));
}

// Both ends tell most: the disk or server, and the file or table.
QString ReadSource(qint32 layerID)
{
    auto* host = HostInterface<ILayerSource>();
    const QString source = host ? host->Source(layerID) : QString();
    const QFontMetrics metrics(QToolTip::font());
    return metrics.elidedText(
        NameInText(source, source.size()), Qt::ElideMiddle, LongestSource * metrics.averageCharWidth());
}

} // namespace

QString ReadRowDetails(IStyleEditorClient& client, const NodeReference& node)
{
    QString lines;
    if (node.isGroup)
        return lines;
    Transaction transaction(client.GetDatabase());
    const std::optional<LayerStyle> style = ReadLayerRow(client, node.layerID);
    if (!style)
        return lines;
    const QStringList groups = ReadGroupNames(client, node.layerID);
    const QString source = ReadSource(node.layerID);
    transaction.Commit();
    if (!style->lsIsNull(Slot::Code))
        AppendLine(lines, TranslateMsg("Code: ^1", ToTextOrNone(style->lsGet(Slot::Code))));
    if (!groups.isEmpty())
        AppendLine(lines, TranslateMsg("Groups: ^1", groups.join(QStringLiteral(", "))));
    AppendScales(lines, *style);
    if (!source.isEmpty())
        AppendLine(lines, TranslateMsg("Source: ^1", source));
    return lines;
}

} // namespace Orvane
