// SPDX-License-Identifier: MIT
#include "shell/dialogs/LayerPropertiesDialog.h"

#include "mapkit/common/Guard.h"
#include "mapkit/common/Progress.h"
#include "mapkit/coordinates/SystemFacts.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/RasterSource.h"
#include "mapkit/data/ServerTables.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/files/ReadingBound.h"
#include "messages/NameInText.h"
#include "shell/systems/SystemChooser.h"
#include "shell/window/RunWithProgress.h"
#include "ui_LayerPropertiesDialog.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>
#include <QLocale>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <optional>

namespace Orvane {

namespace {

constexpr double MostDegrees = 360;

constexpr std::chrono::seconds MeasuringTime{2}; // the window is waiting

// Nothing if it takes too long.
std::optional<LayerMeasure> MeasuredSoon(const DataSource& file, const LayerSource& source)
{
    try {
        const ReadingBound soon(MeasuringTime);
        Progress progress;
        return file.Measure(source.ogrLayer, progress, source.choice);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

// The format and the geometry are those of the whole.
SourceDetails DetailsOf(const DataSource& file, const LayerSource& source)
{
    SourceDetails details = file.Details(source.ogrLayer);
    const bool isPart = !source.choice.kinds.empty();
    if (!isPart && !details.extent.IsEmpty())
        return details;
    const std::optional<LayerMeasure> measured = MeasuredSoon(file, source);
    details.extent = measured ? measured->extent : Box();
    if (isPart)
        details.featureCount = measured ? measured->featureCount : -1;
    return details;
}

// Small numbers are degrees, or as fine.
QString Coordinate(double value, double largest)
{
    return QLocale().toString(value, 'f', largest <= MostDegrees ? 4 : 1);
}

QString ExtentText(const Box& extent)
{
    if (extent.IsEmpty())
        return LayerPropertiesDialog::tr("not known");
    const double largest = std::max(
        {std::abs(extent.minX), std::abs(extent.maxX), std::abs(extent.minY), std::abs(extent.maxY)});
    return LayerPropertiesDialog::tr("%1 to %2 east, %3 to %4 north")
        .arg(
            Coordinate(extent.minX, largest), Coordinate(extent.maxX, largest),
            Coordinate(extent.minY, largest), Coordinate(extent.maxY, largest));
}

} // namespace

LayerPropertiesDialog::LayerPropertiesDialog(
    const MapDocument& document, const std::vector<MapLayer>& layers, qint32 layerID,
    SystemCatalogue& catalogue, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::LayerPropertiesDialog>()), m_catalogue(catalogue)
{
    m_ui->setupUi(this);
    for (const LayerSource& source : document.Sources()) {
        m_stored.emplace(source.layerID, source);
        m_chosen.emplace(source.layerID, source.system);
    }
    FillLayers(layers, layerID);
    ShowLayer();
    Connect();
}

LayerPropertiesDialog::~LayerPropertiesDialog() = default;

qint32 LayerPropertiesDialog::LayerID() const
{
    return m_ui->cmbLayer->currentData().toInt();
}

std::vector<LayerSource> LayerPropertiesDialog::Changes() const
{
    std::vector<LayerSource> changes;
    for (const auto& [layerID, stored] : m_stored) {
        if (stored.system == m_chosen.at(layerID))
            continue;
        changes.push_back(stored);
        changes.back().system = m_chosen.at(layerID);
    }
    return changes;
}

void LayerPropertiesDialog::FillLayers(const std::vector<MapLayer>& layers, qint32 layerID)
{
    std::vector<const MapLayer*> sorted;
    sorted.reserve(layers.size());
    for (const MapLayer& layer : layers)
        sorted.push_back(&layer);
    std::stable_sort(sorted.begin(), sorted.end(), [](const MapLayer* a, const MapLayer* b) {
        return a->name.compare(b->name, Qt::CaseInsensitive) < 0;
    });
    for (const MapLayer* layer : sorted)
        m_ui->cmbLayer->addItem(NameInText(layer->name), layer->layerID);
    m_ui->cmbLayer->setCurrentIndex(std::max(0, m_ui->cmbLayer->findData(layerID)));
}

void LayerPropertiesDialog::Connect()
{
    connect(m_ui->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_ui->cmbLayer, &QComboBox::currentIndexChanged, this, [this] {
        Guard(this, [this] { ShowLayer(); });
    });
    connect(
        m_ui->cmdChange, &QPushButton::clicked, this, [this] { Guard(this, [this] { ChangeSystem(); }); });
    connect(
        m_ui->cmdAsSource, &QPushButton::clicked, this, [this] { Guard(this, [this] { TakeSystem({}); }); });
}

void LayerPropertiesDialog::ShowLayer()
{
    m_named.clear();
    m_isReadable = false;
    ShowDetails({});
    m_ui->lblProblem->hide();
    const auto stored = m_stored.find(LayerID());
    ShowCaptions(stored != m_stored.end() && stored->second.kind == DataKind::Raster);
    if (stored != m_stored.end())
        ShowSource(stored->second);
    else
        m_ui->lblSource->clear();
    ShowSystem();
}

void LayerPropertiesDialog::ShowSource(const LayerSource& source)
{
    m_ui->lblSource->setText(QDir::toNativeSeparators(source.path));
    m_ui->lblSourceLayer->setText(NameInText(source.ogrLayer));
    try {
        const ReadingBound soon(ReadingBound::WhileUserWaits);
        if (source.kind == DataKind::Raster)
            ReadRaster(source);
        else
            ReadDetails(source);
        m_isReadable = true;
    } catch (const RunTimeError& error) {
        m_ui->lblProblem->setText(error.Description());
        m_ui->lblProblem->show();
    }
}

void LayerPropertiesDialog::ReadDetails(const LayerSource& source)
{
    if (IsServerTable(source.path)) {
        const SourceDetails known = ReadOrGiveUp(this, tr("Reading map data"), [source](Progress&) {
            return TablesOf(source).Details(source.ogrLayer);
        });
        m_named = known.system;
        ShowDetails(known);
        return;
    }
    const DataSource file(source.path);
    const SourceDetails details = DetailsOf(file, source);
    m_named = details.system;
    ShowDetails(details);
}

void LayerPropertiesDialog::ReadRaster(const LayerSource& source)
{
    const RasterSource raster(source.path, source.ogrLayer);
    m_named = raster.System();
    ShowRaster(raster.Details());
    m_ui->lblExtent->setText(ExtentText(raster.Extent()));
}

void LayerPropertiesDialog::ShowRaster(const RasterDetails& details)
{
    const QLocale locale;
    m_ui->lblFormat->setText(details.driver);
    m_ui->lblGeometry->setText(tr("%1 x %2 pixels, bands: %3")
                                   .arg(
                                       locale.toString(details.size.width()),
                                       locale.toString(details.size.height()),
                                       locale.toString(details.bands)));
    const QSizeF pixel = details.pixelSize;
    m_ui->lblCount->setText(
        pixel.isEmpty() ? tr("not known")
                        : tr("%1 x %2").arg(locale.toString(pixel.width()), locale.toString(pixel.height())));
}

void LayerPropertiesDialog::ShowCaptions(bool isRaster)
{
    m_ui->lblGeometryCaption->setText(isRaster ? tr("Raster:") : tr("Geometry:"));
    m_ui->lblCountCaption->setText(isRaster ? tr("Pixel size:") : tr("Features:"));
    const bool isNamed = !isRaster || !m_stored.at(LayerID()).ogrLayer.isEmpty();
    m_ui->lblSourceLayerCaption->setVisible(isNamed);
    m_ui->lblSourceLayer->setVisible(isNamed);
}

void LayerPropertiesDialog::ShowDetails(const SourceDetails& details)
{
    m_ui->lblFormat->setText(details.driver);
    m_ui->lblGeometry->setText(details.geometry);
    m_ui->lblCount->setText(
        details.featureCount < 0 ? tr("not known") : QLocale().toString(details.featureCount));
    m_ui->lblExtent->setText(ExtentText(details.extent));
}

// Where the system of the shown layer comes from. chosen: empty if none was chosen.
QString LayerPropertiesDialog::OriginText(const QString& chosen) const
{
    if (!m_isReadable)
        return chosen.isEmpty() ? tr("The source cannot be read.")
                                : tr("It was assumed or chosen; the source cannot be read.");
    if (chosen.isEmpty())
        return m_named.isEmpty() ? tr("The source names none; the coordinates are taken as those of the map.")
                                 : tr("The source says so.");
    return m_named.isEmpty() ? tr("It was assumed or chosen; the source names none.")
                             : tr("It was chosen; the source says %1.").arg(SystemTitle(m_named));
}

void LayerPropertiesDialog::ShowSystem()
{
    const auto found = m_chosen.find(LayerID());
    const QString chosen = found == m_chosen.end() ? QString() : found->second;
    const QString& used = chosen.isEmpty() ? m_named : chosen;
    m_ui->lblSystem->setText(used.isEmpty() ? tr("not known") : SystemTitle(used));
    m_ui->lblOrigin->setText(found == m_chosen.end() ? QString() : OriginText(chosen));
    m_ui->cmdChange->setEnabled(found != m_chosen.end());
    m_ui->cmdAsSource->setEnabled(!chosen.isEmpty());
}

void LayerPropertiesDialog::ChangeSystem()
{
    SystemQuestion question;
    question.title = tr("Coordinate System of the Layer");
    question.text = tr("The coordinates in the data stay as they are; the system says where they lie.");
    question.system = m_chosen.at(LayerID()).isEmpty() ? m_named : m_chosen.at(LayerID());
    const QString system = SystemChooser::Ask(m_catalogue, question, this);
    if (!system.isEmpty())
        TakeSystem(system == m_named ? QString() : system);
}

void LayerPropertiesDialog::TakeSystem(const QString& system)
{
    m_chosen[LayerID()] = system;
    ShowSystem();
}

} // namespace Orvane
