// SPDX-License-Identifier: MIT
#include "shell/output/PageDialog.h"

#include "mapkit/drawing/RoundedScale.h"
#include "mapkit/output/Papers.h"
#include "ui_PageDialog.h"

#include <QLocale>
#include <QPushButton>

namespace Orvane {

namespace {

enum Unit { Millimetres, Pixels };
enum Orientation { Wide, Upright };

} // namespace

PageDialog::PageDialog(Purpose purpose, const QString& mapName, double scaleDenominator, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::PageDialog>())
{
    m_ui->setupUi(this);
    FillPapers();
    m_ui->txtTitle->setText(mapName);
    m_ui->spnScale->setValue(RoundedScale(scaleDenominator));
    const bool exports = purpose == Purpose::Export;
    setWindowTitle(exports ? tr("Export Map") : tr("Print Map"));
    m_ui->grpPage->setVisible(exports);
    m_ui->buttons->button(QDialogButtonBox::Ok)->setText(exports ? tr("&Export...") : tr("&Preview..."));
    Show(PageChoices::Stored());
    Connect();
}

// A spin box that loses the focus while the dialog is destroyed emits its last value again.
PageDialog::~PageDialog()
{
    for (QDoubleSpinBox* side : {m_ui->spnWidth, m_ui->spnHeight})
        side->disconnect(this);
}

PageChoices PageDialog::Choices() const
{
    PageChoices choices;
    choices.paper = m_ui->cmbPaper->currentData().toString();
    choices.upright = m_ui->cmbOrientation->currentIndex() == Upright;
    choices.ownSize = m_ownSize;
    choices.ownInPixels = m_ownInPixels;
    choices.resolution = m_ui->spnResolution->value();
    choices.keepScale = m_ui->optScale->isChecked();
    choices.title = m_ui->chkTitle->isChecked();
    choices.legend = m_ui->chkLegend->isChecked();
    choices.scaleBar = m_ui->chkScaleBar->isChecked();
    return choices;
}

PageSettings PageDialog::Settings() const
{
    const PageChoices choices = Choices();
    PageSettings settings;
    settings.size = choices.Millimetres();
    settings.resolution = choices.resolution;
    settings.title = choices.title ? m_ui->txtTitle->text() : QString();
    settings.legend = choices.legend;
    settings.scaleBar = choices.scaleBar;
    settings.scaleDenominator = choices.keepScale ? m_ui->spnScale->value() : 0;
    if (settings.title.isEmpty() && !settings.legend && !settings.scaleBar)
        settings.margin = 0;
    return settings;
}

void PageDialog::accept()
{
    Choices().Store();
    QDialog::accept();
}

void PageDialog::Show(const PageChoices& choices)
{
    m_ownSize = choices.ownSize;
    m_ownInPixels = choices.ownInPixels;
    m_ui->cmbPaper->setCurrentIndex(m_ui->cmbPaper->findData(choices.paper));
    m_ui->cmbOrientation->setCurrentIndex(choices.upright ? Upright : Wide);
    m_ui->spnResolution->setValue(choices.resolution);
    (choices.keepScale ? m_ui->optScale : m_ui->optWindow)->setChecked(true);
    m_ui->spnScale->setEnabled(choices.keepScale);
    m_ui->chkTitle->setChecked(choices.title);
    m_ui->txtTitle->setEnabled(choices.title);
    m_ui->chkLegend->setChecked(choices.legend);
    m_ui->chkScaleBar->setChecked(choices.scaleBar);
    PaperChanged();
}

void PageDialog::FillPapers()
{
    for (const Paper& paper : Papers::All())
        m_ui->cmbPaper->addItem(paper.name, paper.name);
    m_ui->cmbPaper->addItem(tr("Custom size"), QString());
}

void PageDialog::Connect()
{
    connect(m_ui->cmbPaper, &QComboBox::currentIndexChanged, this, &PageDialog::PaperChanged);
    connect(m_ui->cmbOrientation, &QComboBox::currentIndexChanged, this, &PageDialog::ShowSize);
    connect(m_ui->cmbUnit, &QComboBox::activated, this, &PageDialog::UnitChanged);
    connect(m_ui->spnResolution, &QSpinBox::valueChanged, this, &PageDialog::ShowSummary);
    connect(m_ui->optScale, &QRadioButton::toggled, m_ui->spnScale, &QWidget::setEnabled);
    connect(m_ui->chkTitle, &QCheckBox::toggled, m_ui->txtTitle, &QWidget::setEnabled);
    for (QDoubleSpinBox* side : {m_ui->spnWidth, m_ui->spnHeight}) {
        connect(side, &QDoubleSpinBox::valueChanged, this, [this] {
            if (IsOwnSize())
                m_ownSize = QSizeF(m_ui->spnWidth->value(), m_ui->spnHeight->value());
            ShowSummary();
        });
    }
}

void PageDialog::PaperChanged()
{
    const bool own = IsOwnSize();
    m_ui->cmbOrientation->setEnabled(!own);
    m_ui->spnWidth->setEnabled(own);
    m_ui->spnHeight->setEnabled(own);
    m_ui->cmbUnit->setEnabled(own);
    ShowSize();
}

// Converts the size to the new unit; the page stays as large as it is.
void PageDialog::UnitChanged()
{
    const double perInch = m_ui->spnResolution->value() / MillimetresPerInch;
    const bool inPixels = m_ui->cmbUnit->currentIndex() == Pixels;
    if (inPixels != m_ownInPixels)
        m_ownSize *= inPixels ? perInch : 1 / perInch;
    m_ownInPixels = inPixels;
    ShowSize();
}

void PageDialog::ShowSize()
{
    const PageChoices choices = Choices();
    const bool pixels = IsOwnSize() && choices.ownInPixels;
    const QSizeF size = pixels ? choices.ownSize : choices.Millimetres();
    for (QDoubleSpinBox* side : {m_ui->spnWidth, m_ui->spnHeight}) {
        side->setDecimals(pixels ? 0 : 1);
        side->setRange(Papers::Least, pixels ? Papers::MostPixels : Papers::MostMillimetres);
    }
    m_ui->cmbUnit->setCurrentIndex(pixels ? Pixels : Millimetres);
    m_ui->spnWidth->setValue(size.width());
    m_ui->spnHeight->setValue(size.height());
    ShowSummary();
}

void PageDialog::ShowSummary()
{
    const QSizeF pixels = Choices().Pixels();
    const QLocale locale;
    m_ui->lblSummary->setText(
        tr("As a picture: %1 × %2 pixels")
            .arg(locale.toString(pixels.width(), 'f', 0), locale.toString(pixels.height(), 'f', 0)));
}

bool PageDialog::IsOwnSize() const
{
    return m_ui->cmbPaper->currentData().toString().isEmpty();
}

} // namespace Orvane
