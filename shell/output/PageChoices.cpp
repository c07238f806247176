// SPDX-License-Identifier: MIT
#include "shell/output/PageChoices.h"

#include "mapkit/output/PageWriter.h"
#include "mapkit/output/Papers.h"

#include <QSettings>

#include <algorithm>

namespace Orvane {

namespace {

constexpr auto Group = "Output";

const Paper* PaperNamed(const QString& name)
{
    const auto papers = Papers::All();
    const auto found
        = std::find_if(papers.begin(), papers.end(), [&](const Paper& paper) { return paper.name == name; });
    return found == papers.end() ? nullptr : &*found;
}

bool IsSide(double side)
{
    return side >= Papers::Least && side <= Papers::MostPixels;
}

} // namespace

PageChoices PageChoices::Stored()
{
    const PageChoices usual;
    QSettings settings;
    settings.beginGroup(QLatin1String(Group));
    const auto flag = [&](const char* key, bool otherwise) {
        return settings.value(QLatin1String(key), otherwise).toBool();
    };
    PageChoices choices;
    choices.paper = settings.value(QStringLiteral("Paper"), usual.paper).toString();
    if (!choices.paper.isEmpty() && !PaperNamed(choices.paper))
        choices.paper = usual.paper;
    choices.upright = flag("Portrait", usual.upright);
    const QSizeF own = settings.value(QStringLiteral("OwnSize"), usual.ownSize).toSizeF();
    choices.ownSize = IsSide(own.width()) && IsSide(own.height()) ? own : usual.ownSize;
    choices.ownInPixels = flag("OwnInPixels", usual.ownInPixels);
    const int resolution = settings.value(QStringLiteral("Resolution"), usual.resolution).toInt();
    choices.resolution
        = resolution >= LeastResolution && resolution <= MostResolution ? resolution : usual.resolution;
    choices.keepScale = flag("KeepScale", usual.keepScale);
    choices.title = flag("Title", usual.title);
    choices.legend = flag("Legend", usual.legend);
    choices.scaleBar = flag("ScaleBar", usual.scaleBar);
    return choices;
}

void PageChoices::Store() const
{
    QSettings settings;
    settings.beginGroup(QLatin1String(Group));
    settings.setValue(QStringLiteral("Paper"), paper);
    settings.setValue(QStringLiteral("Portrait"), upright);
    settings.setValue(QStringLiteral("OwnSize"), ownSize);
    settings.setValue(QStringLiteral("OwnInPixels"), ownInPixels);
    settings.setValue(QStringLiteral("Resolution"), resolution);
    settings.setValue(QStringLiteral("KeepScale"), keepScale);
    settings.setValue(QStringLiteral("Title"), title);
    settings.setValue(QStringLiteral("Legend"), legend);
    settings.setValue(QStringLiteral("ScaleBar"), scaleBar);
}

QSizeF PageChoices::Millimetres() const
{
    if (const Paper* known = PaperNamed(paper))
        return upright ? known->upright : known->upright.transposed();
    return ownInPixels ? ownSize * (MillimetresPerInch / resolution) : ownSize;
}

QSizeF PageChoices::Pixels() const
{
    return Millimetres() * (resolution / MillimetresPerInch);
}

} // namespace Orvane
