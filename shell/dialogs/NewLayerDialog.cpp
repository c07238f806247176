// SPDX-License-Identifier: MIT
#include "shell/dialogs/NewLayerDialog.h"

#include "mapkit/common/Guard.h"
#include "mapkit/files/DataFiles.h"
#include "mapkit/files/ReadingBound.h"
#include "messages/NameInText.h"
#include "ui_NewLayerDialog.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QPushButton>

namespace Orvane {

namespace {

constexpr qsizetype MostProblems = 3; // in the dialog
constexpr qsizetype MostInToolTip = 20;

bool IsPlainFolder(const QString& path)
{
    return QFileInfo(path).isDir() && DataFiles::SourceOf(path).isEmpty();
}

} // namespace

NewLayerDialog::NewLayerDialog(const QString& dataFile, Look look, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::NewLayerDialog>()), m_look(std::move(look))
{
    m_ui->setupUi(this);
    m_ui->cmbKind->addItems({tr("Points"), tr("Lines"), tr("Areas")});
    m_ui->edtPackage->setText(dataFile);
    Wire();
    UpdateEnabled();
}

NewLayerDialog::~NewLayerDialog() = default;

bool NewLayerDialog::IsEmptyLayer() const
{
    return m_ui->optEmpty->isChecked();
}

QString NewLayerDialog::Name() const
{
    return m_ui->edtName->text().trimmed();
}

FeatureKind NewLayerDialog::Kind() const
{
    return FeatureKind(m_ui->cmbKind->currentIndex());
}

QString NewLayerDialog::File() const
{
    const QString path = IsEmptyLayer() ? m_ui->edtPackage->text() : m_ui->edtSource->text();
    return path.trimmed().isEmpty() ? QString() : QFileInfo(path.trimmed()).absoluteFilePath();
}

const OfferedLayer& NewLayerDialog::Source() const
{
    return m_layers.at(size_t(m_ui->cmbSourceLayer->currentIndex()));
}

void NewLayerDialog::Wire()
{
    connect(m_ui->optEmpty, &QRadioButton::toggled, this, &NewLayerDialog::UpdateEnabled);
    connect(m_ui->edtName, &QLineEdit::textChanged, this, &NewLayerDialog::UpdateEnabled);
    connect(m_ui->edtName, &QLineEdit::textEdited, this, [this] { m_nameIsOwn = true; });
    connect(m_ui->edtPackage, &QLineEdit::textChanged, this, &NewLayerDialog::UpdateEnabled);
    connect(m_ui->cmbSourceLayer, &QComboBox::currentIndexChanged, this, &NewLayerDialog::TakeNameOfSource);
    connect(m_ui->edtSource, &QLineEdit::textChanged, this, [this](const QString& path) {
        if (path.isEmpty() || QFileInfo(path).isFile())
            Guard(this, [this] { ShowSource(); });
    });
    connect(m_ui->edtSource, &QLineEdit::editingFinished, this, [this] {
        Guard(this, [this] { ShowSource(); });
    });
    const auto run = [this](QAbstractButton* button, void (NewLayerDialog::*command)()) {
        connect(button, &QAbstractButton::clicked, this, [this, command] {
            Guard(this, [&] { (this->*command)(); });
        });
    };
    run(m_ui->cmdBrowsePackage, &NewLayerDialog::BrowseForPackage);
    run(m_ui->cmdBrowseSource, &NewLayerDialog::BrowseForSource);
}

void NewLayerDialog::BrowseForPackage()
{
    QFileDialog dialog(this, tr("GeoPackage"), File(), tr("GeoPackages (*.gpkg)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // the layer is added to those of the file
    dialog.setDefaultSuffix(QStringLiteral("gpkg"));
    if (dialog.exec() == QDialog::Accepted)
        m_ui->edtPackage->setText(dialog.selectedFiles().value(0));
}

void NewLayerDialog::BrowseForSource()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Map Data"), File(), tr("All files (*)"));
    if (!path.isEmpty())
        m_ui->edtSource->setText(path);
}

// OK stays disabled until a file with layers is chosen.
void NewLayerDialog::ShowSource()
{
    if (File() == m_shownSource)
        return;
    m_shownSource = File();
    m_ui->cmbSourceLayer->clear();
    ShowProblems(ReadSource());
    for (const OfferedLayer& layer : m_layers)
        m_ui->cmbSourceLayer->addItem(NameInText(layer.title));
    UpdateEnabled();
}

// Returns what cannot be read; empty when all can, or no source is needed yet.
QStringList NewLayerDialog::ReadSource()
{
    m_layers.clear();
    if (IsEmptyLayer() || File().isEmpty())
        return {};
    if (IsPlainFolder(File()))
        return {
            tr("This is a folder: choose a file in it, or drop the folder on the map to add all its data.")};
    try {
        const ReadingBound soon(ReadingBound::WhileUserWaits);
        LayerOffer offer = m_look(File());
        m_layers = std::move(offer.layers);
        return offer.problems;
    } catch (const RunTimeError& error) {
        return {error.Description()};
    }
}

void NewLayerDialog::ShowProblems(const QStringList& problems)
{
    QStringList shown = problems.mid(0, MostProblems);
    const qsizetype more = problems.size() - shown.size();
    if (more > 0)
        shown << tr("... and %1 more.").arg(QLocale().toString(more));
    const QString all = problems.mid(0, MostInToolTip).join(QLatin1Char('\n'));
    m_ui->lblProblem->setText(shown.join(QLatin1Char('\n')));
    m_ui->lblProblem->setToolTip(more > 0 ? Qt::convertFromPlainText(all) : QString());
}

void NewLayerDialog::TakeNameOfSource()
{
    const int index = m_ui->cmbSourceLayer->currentIndex();
    if (!m_nameIsOwn && index >= 0 && size_t(index) < m_layers.size())
        m_ui->edtName->setText(m_layers[size_t(index)].title);
}

void NewLayerDialog::UpdateEnabled()
{
    const bool isEmptyLayer = IsEmptyLayer();
    for (QWidget* widget :
         {static_cast<QWidget*>(m_ui->cmbKind), static_cast<QWidget*>(m_ui->edtPackage),
          static_cast<QWidget*>(m_ui->cmdBrowsePackage)})
        widget->setEnabled(isEmptyLayer);
    for (QWidget* widget :
         {static_cast<QWidget*>(m_ui->edtSource), static_cast<QWidget*>(m_ui->cmdBrowseSource),
          static_cast<QWidget*>(m_ui->cmbSourceLayer)})
        widget->setEnabled(!isEmptyLayer);
    const bool hasData = isEmptyLayer ? !File().isEmpty() : !m_layers.empty();
    m_ui->buttons->button(QDialogButtonBox::Ok)->setEnabled(hasData && !Name().isEmpty());
}

} // namespace Orvane
