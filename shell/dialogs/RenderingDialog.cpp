// SPDX-License-Identifier: MIT
#include "shell/dialogs/RenderingDialog.h"

#include "mapkit/common/Guard.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/ServerTables.h"
#include "mapkit/data/SourceAttributes.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/files/ReadingBound.h"
#include "mapkit/looks/ColourRamps.h"
#include "mapkit/looks/RendererStyles.h"
#include "shell/window/RunWithProgress.h"
#include "ui_RenderingDialog.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

namespace Orvane {

namespace {

constexpr int SwatchCount = 5; // colours in the picture of a ramp

QString StyleName(qint32 style)
{
    for (const RendererStyle& offered : RendererStyles::Offered()) {
        if (offered.number == style)
            return offered.name;
    }
    return RenderingDialog::tr("Standard");
}

// Says so where the settings of this dialog have no effect.
QString StyleText(qint32 style)
{
    if (RendererStyles::Has(style, RendererStyles::Labelled | RendererStyles::Graduated))
        return StyleName(style);
    return RenderingDialog::tr(
               "%1. It shows neither labels nor classes: choose another in the layer control.")
        .arg(StyleName(style));
}

// A server may be silent.
std::vector<SourceField> FieldsOf(const LayerSource& source, QWidget* parent)
{
    const auto read = [source](Progress&) { return SourceAttributes(source).Fields(); };
    if (IsServerTable(source.path))
        return ReadOrGiveUp(parent, RenderingDialog::tr("Reading attributes"), read);
    const ReadingBound soon(ReadingBound::WhileUserWaits);
    Progress progress;
    return read(progress);
}

// Empty when the source cannot be read, and for a raster.
std::vector<SourceField> FieldsOf(const MapDocument& document, qint32 layerID, QWidget* parent)
{
    for (const LayerSource& source : document.Sources()) {
        if (source.layerID != layerID || source.kind == DataKind::Raster)
            continue;
        try {
            return FieldsOf(source, parent);
        } catch (const RunTimeError&) { // the dialog says so
        }
    }
    return {};
}

void FillAttributes(QComboBox& list, const std::vector<SourceField>& fields, AttributeUse use)
{
    list.clear();
    const QString best = BestAttribute(fields, use);
    list.addItem(
        best.isEmpty() ? RenderingDialog::tr("None") : RenderingDialog::tr("Automatic (%1)").arg(best),
        QString());
    for (const SourceField& field : fields) {
        if (field.isNumber || use == AttributeUse::Labels)
            list.addItem(field.name, field.name);
    }
    list.setEnabled(list.count() > 1);
}

// An attribute that the source no longer has stays chosen until the user chooses another.
void ChooseAttribute(QComboBox& list, const QString& attribute)
{
    if (list.findData(attribute) < 0)
        list.addItem(attribute, attribute);
    list.setCurrentIndex(list.findData(attribute));
}

QIcon RampIcon(const QString& ramp, const QSize& size, double pixelRatio)
{
    QPixmap picture(size * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    QPainter painter(&picture);
    const std::vector<QColor> colours = ColourRamps::ColoursOf(ramp, SwatchCount, false);
    for (int i = 0; i < SwatchCount; ++i) {
        const int left = size.width() * i / SwatchCount;
        painter.fillRect(
            QRect(left, 0, size.width() * (i + 1) / SwatchCount - left, size.height()), colours[size_t(i)]);
    }
    return QIcon(picture);
}

void FillRamps(QComboBox& list)
{
    const int height = list.fontMetrics().height();
    list.setIconSize(QSize(height * SwatchCount, height));
    list.addItem(RenderingDialog::tr("Fill colours of the layer"), QString());
    for (const ColourRamps::Ramp& ramp : ColourRamps::Offered())
        list.addItem(RampIcon(ramp.key, list.iconSize(), list.devicePixelRatioF()), ramp.name, ramp.key);
}

} // namespace

RenderingDialog::RenderingDialog(
    const MapDocument& document, const std::vector<MapLayer>& layers, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::RenderingDialog>()), m_document(document),
      m_stored(document.Renderings().All())
{
    m_ui->setupUi(this);
    m_ui->spnClassCount->setRange(Classification::MinCount, Classification::MaxCount);
    FillRamps(*m_ui->cmbRamp);
    FillLayers(layers);
    ShowLayer();
    Connect();
}

RenderingDialog::~RenderingDialog() = default;

std::map<qint32, LayerRendering> RenderingDialog::Changes() const
{
    std::map<qint32, LayerRendering> changes = m_chosen;
    std::erase_if(changes, [this](const auto& entry) {
        const auto stored = m_stored.find(entry.first);
        return entry.second == (stored == m_stored.end() ? LayerRendering() : stored->second);
    });
    return changes;
}

void RenderingDialog::FillLayers(const std::vector<MapLayer>& layers)
{
    std::vector<const MapLayer*> sorted;
    for (const MapLayer& layer : layers) {
        sorted.push_back(&layer);
        m_styles[layer.layerID] = layer.values.style;
    }
    std::stable_sort(sorted.begin(), sorted.end(), [](const MapLayer* a, const MapLayer* b) {
        return a->name.compare(b->name, Qt::CaseInsensitive) < 0;
    });
    for (const MapLayer* layer : sorted)
        m_ui->cmbLayer->addItem(layer->name, layer->layerID);
    const auto styled = std::find_if(sorted.begin(), sorted.end(), [](const MapLayer* layer) {
        return RendererStyles::Has(layer->values.style, RendererStyles::Labelled | RendererStyles::Graduated);
    });
    if (styled != sorted.end())
        m_ui->cmbLayer->setCurrentIndex(int(styled - sorted.begin()));
}

void RenderingDialog::Choose(qint32 layerID)
{
    const int index = m_ui->cmbLayer->findData(layerID);
    if (index >= 0)
        m_ui->cmbLayer->setCurrentIndex(index);
}

void RenderingDialog::Connect()
{
    connect(m_ui->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_ui->cmbLayer, &QComboBox::currentIndexChanged, this, [this] {
        Guard(this, [this] { ShowLayer(); });
    });
    for (QComboBox* list :
         {m_ui->cmbLabelAttribute, m_ui->cmbClassAttribute, m_ui->cmbDivision, m_ui->cmbRamp})
        connect(list, &QComboBox::currentIndexChanged, this, &RenderingDialog::Keep);
    connect(m_ui->spnClassCount, &QSpinBox::valueChanged, this, &RenderingDialog::Keep);
    connect(m_ui->chkReversed, &QCheckBox::toggled, this, &RenderingDialog::Keep);
}

void RenderingDialog::ShowLayer()
{
    const QScopedValueRollback showing(m_isShowing, true);
    const auto stored = m_stored.find(LayerID());
    const LayerRendering known = stored == m_stored.end() ? LayerRendering() : stored->second;
    const LayerRendering& shown = m_chosen.try_emplace(LayerID(), known).first->second;
    m_ui->lblStyle->setText(StyleText(m_styles[LayerID()]));
    ShowFields();
    ChooseAttribute(*m_ui->cmbLabelAttribute, shown.labelAttribute);
    ChooseAttribute(*m_ui->cmbClassAttribute, shown.classAttribute);
    m_ui->cmbDivision->setCurrentIndex(int(shown.division));
    m_ui->spnClassCount->setValue(shown.classCount);
    ChooseAttribute(*m_ui->cmbRamp, shown.ramp);
    m_ui->chkReversed->setChecked(shown.isRampReversed);
}

void RenderingDialog::ShowFields()
{
    const std::vector<SourceField> fields = FieldsOf(m_document, LayerID(), this);
    m_ui->lblProblem->setVisible(fields.empty());
    m_ui->framLabels->setEnabled(!fields.empty());
    m_ui->framClasses->setEnabled(!BestAttribute(fields, AttributeUse::Classes).isEmpty());
    FillAttributes(*m_ui->cmbLabelAttribute, fields, AttributeUse::Labels);
    FillAttributes(*m_ui->cmbClassAttribute, fields, AttributeUse::Classes);
}

void RenderingDialog::Keep()
{
    if (m_isShowing)
        return;
    LayerRendering& chosen = m_chosen[LayerID()];
    chosen.labelAttribute = m_ui->cmbLabelAttribute->currentData().toString();
    chosen.classAttribute = m_ui->cmbClassAttribute->currentData().toString();
    chosen.division = ClassDivision(m_ui->cmbDivision->currentIndex());
    chosen.classCount = m_ui->spnClassCount->value();
    chosen.ramp = m_ui->cmbRamp->currentData().toString();
    chosen.isRampReversed = m_ui->chkReversed->isChecked();
}

qint32 RenderingDialog::LayerID() const
{
    return m_ui->cmbLayer->currentData().toInt();
}

} // namespace Orvane
