// SPDX-License-Identifier: MIT
#include "shell/help/GuidePlaces.h"

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/canvas/MapTool.h"

#include <QLatin1String>

#include <algorithm>
#include <array>

namespace Orvane::GuidePlaces {

namespace {

// An object's name, and the section about it. Tools are named like their commands.
struct Entry {
    const char* name;
    const char* section;
};

constexpr auto Moving = "move-around-the-map";
constexpr auto Styling = "3-style-the-layers";
constexpr auto Schemes = "4-save-two-looks";
constexpr auto Tools = "use-the-tools-on-the-map";
constexpr auto Output = "5-export-and-print";
constexpr auto Rendering = "labels-classes-lines-with-edges";
constexpr auto Systems = "coordinate-systems";
constexpr auto Attributes = "the-attribute-table";
constexpr auto Servers = "maps-on-a-server";
constexpr auto Missing = "when-something-is-missing";

constexpr std::array Entries{
    Entry{"canvas", Moving},
    Entry{"cmbScale", Moving},
    Entry{"actZoomRectangle", Moving},
    Entry{"actIdentify", Tools},
    Entry{"actSelect", Tools},
    Entry{"actMeasureLine", Tools},
    Entry{"actMeasureArea", Tools},
    Entry{"actMoveFeature", Tools},
    Entry{"tvIdentified", Tools},
    Entry{"picScheme", Schemes},
    Entry{"frmLayerStyles", Styling},
    Entry{"frmPasteSettings", Styling},
    Entry{"NewLayerDialog", Styling},
    Entry{"RenderingDialog", Rendering},
    Entry{"dlgMapBackground", Rendering},
    Entry{"LayerPropertiesDialog", Systems},
    Entry{"SystemChooser", Systems},
    Entry{"cmdMapSystem", Systems},
    Entry{"framNotice", Systems},
    Entry{"AttributeTable", Attributes},
    Entry{"dlgTableLayer", Attributes},
    Entry{"TableColumnsDialog", "tables-with-coordinates"},
    Entry{"dlgMapFile", "2-save-the-map"},
    Entry{"ServerMapDialog", Servers},
    Entry{"AddServerDialog", Servers},
    Entry{"PasswordDialog", Servers},
    Entry{"RightsDialog", Servers},
    Entry{"TablesDialog", Servers},
    Entry{"lblReadOnly", Servers},
    Entry{"dlgThemeName", "themes"},
    Entry{"dlgSwitchScheme", Schemes},
    Entry{"dlgSchemeManager", Schemes},
    Entry{"dlgSchemeParts", Schemes},
    Entry{"dlgSchemeReport", Schemes},
    Entry{"dlgExportScheme", Schemes},
    Entry{"dlgImportScheme", Schemes},
    Entry{"PageDialog", Output},
    Entry{"dlgPreview", Output},
    Entry{"dlgExportFile", Output},
    Entry{"dlgProblems", Missing},
    Entry{"dlgMapGone", Missing},
    Entry{"dlgFindData", Missing},
};

QString SectionOfName(const QString& name)
{
    const auto* found = std::find_if(Entries.begin(), Entries.end(), [&](const Entry& entry) {
        return name == QLatin1String(entry.name);
    });
    return found == Entries.end() ? QString() : QString::fromLatin1(found->section);
}

QString SectionOfTool(const QObject* place)
{
    const auto* canvas = qobject_cast<const MapCanvas*>(place);
    return canvas && canvas->Tool() ? SectionOfName(canvas->Tool()->objectName()) : QString();
}

} // namespace

QString SectionAt(const QObject* place)
{
    for (; place; place = place->parent()) {
        const QString ofTool = SectionOfTool(place);
        QString section = ofTool.isEmpty() ? SectionOfName(place->objectName()) : ofTool;
        if (!section.isEmpty())
            return section;
    }
    return {};
}

QStringList Sections()
{
    QStringList sections;
    sections.reserve(int(Entries.size()));
    for (const Entry& entry : Entries)
        sections << QString::fromLatin1(entry.section);
    sections.removeDuplicates();
    return sections;
}

QString SectionOf(const QString& heading)
{
    QString section;
    for (const QChar letter : heading.toLower()) {
        if (letter.isLetterOrNumber() || letter == QLatin1Char('-'))
            section += letter;
        else if (letter.isSpace())
            section += QLatin1Char('-');
    }
    return section;
}

} // namespace Orvane::GuidePlaces
