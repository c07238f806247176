// SPDX-License-Identifier: MIT
#include "component/dialog/pasting/frmPasteSettings.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/Messages.h"
#include "samples/BgrColour.h"
#include "ui_frmPasteSettings.h"

#include <OrvaneShellLib/IShellServices.h>

#include <QEvent>
#include <QHeaderView>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace Orvane {

namespace {

constexpr int NameColumn = 0;
constexpr int ValueColumn = 1;
constexpr int SettingRole = Qt::UserRole; // of the first column; the items of frames have none
constexpr int FrameRole = Qt::UserRole + 1;

QString FrameTitle(SettingGroup group)
{
    return group == SettingGroup::Flags ? TranslateMsg("Flags") : TranslateMsg("Line and Fill");
}

bool HasTick(const QTreeWidgetItem& item)
{
    return item.data(NameColumn, Qt::CheckStateRole).isValid();
}

/// Rows as high as those of check boxes in a form.
class RoomyRows : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        constexpr int room = 6;
        const QSize needed = QStyledItemDelegate::sizeHint(option, index);
        return {needed.width(), qMax(needed.height(), option.fontMetrics.height() + room)};
    }
};

// With a frame, or a colour like that of the list could not be seen.
QIcon ColourSample(qint32 colour, const QWidget& widget)
{
    const int side = widget.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &widget);
    QPixmap sample(side, side);
    sample.fill(QColorFromBgr(colour));
    QPainter painter(&sample);
    painter.setPen(widget.palette().color(QPalette::Mid));
    painter.drawRect(0, 0, side - 1, side - 1);
    painter.end();
    QIcon icon(sample);
    icon.addPixmap(sample, QIcon::Selected); // a style would tint it
    return icon;
}

// An item without a tick cannot be ticked by that of its frame either.
void Disable(QTreeWidgetItem& item, const QString& whyNot)
{
    item.setDisabled(true);
    for (const int column : {NameColumn, ValueColumn})
        item.setToolTip(column, whyNot);
    item.setData(NameColumn, Qt::AccessibleDescriptionRole, whyNot);
}

} // namespace

frmPasteSettings::frmPasteSettings(QWidget* owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmPasteSettings>())
{
    m_ui->setupUi(this);
    TranslateForm(*this);
    m_ui->lstSettings->setHeaderLabels({TranslateMsg("Setting"), TranslateMsg("Value")});
    m_ui->lstSettings->setItemDelegate(new RoomyRows(m_ui->lstSettings));
    // On the colour of lists, styles draw an empty box that cannot be seen in dark palettes.
    m_ui->lstSettings->viewport()->setBackgroundRole(QPalette::Window);
    m_ui->lstSettings->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(m_ui->lstSettings, &QTreeWidget::itemChanged, this, &frmPasteSettings::EnablePaste);
    connect(m_ui->cmdAll, &QAbstractButton::clicked, this, [this] { TickAll(true); });
    connect(m_ui->cmdNone, &QAbstractButton::clicked, this, [this] { TickAll(false); });
    connect(m_ui->cmdPaste, &QAbstractButton::clicked, this, [this] { Close(true); });
    connect(m_ui->cmdCancelPaste, &QAbstractButton::clicked, this, &frmPasteSettings::reject);
}

frmPasteSettings::~frmPasteSettings() = default;

void frmPasteSettings::Show(const QString& target, const std::vector<Row>& rows, const SettingSet& ticked)
{
    m_ui->lblTarget->setText(target);
    m_ui->lstSettings->clear();
    for (const Row& row : rows)
        Add(row, ticked.count(row.setting) > 0);
    m_ui->lstSettings->expandAll();
    m_ui->lstSettings->setCurrentItem(m_ui->lstSettings->topLevelItem(0));
    EnablePaste();
}

// The settings of a frame follow each other.
QTreeWidgetItem* frmPasteSettings::Frame(SettingGroup group)
{
    QTreeWidget& list = *m_ui->lstSettings;
    if (group == SettingGroup::None)
        return list.invisibleRootItem();
    QTreeWidgetItem* last = list.topLevelItem(list.topLevelItemCount() - 1);
    if (last && last->data(NameColumn, FrameRole) == int(group))
        return last;
    auto* frame = new QTreeWidgetItem(&list, {FrameTitle(group)});
    frame->setFlags(frame->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    frame->setData(NameColumn, FrameRole, int(group));
    return frame;
}

void frmPasteSettings::Add(const Row& row, bool isTicked)
{
    auto* item = new QTreeWidgetItem(Frame(EntryOf(row.setting).group), {row.name, row.value});
    item->setData(NameColumn, SettingRole, int(row.setting));
    item->setData(NameColumn, Qt::AccessibleTextRole, TranslateMsg("^1: ^2", row.name, row.value));
    if (row.colour && !IsTransparent(*row.colour))
        item->setIcon(ValueColumn, ColourSample(*row.colour, *this));
    if (row.whyNot.isEmpty())
        item->setCheckState(NameColumn, isTicked ? Qt::Checked : Qt::Unchecked);
    else
        Disable(*item, row.whyNot);
}

void frmPasteSettings::TickAll(bool ticked)
{
    for (QTreeWidgetItemIterator item(m_ui->lstSettings); *item; ++item) {
        if (HasTick(**item))
            (*item)->setCheckState(NameColumn, ticked ? Qt::Checked : Qt::Unchecked);
    }
}

SettingSet frmPasteSettings::Ticked() const
{
    SettingSet ticked;
    for (QTreeWidgetItemIterator item(m_ui->lstSettings, QTreeWidgetItemIterator::Checked); *item; ++item) {
        const QVariant setting = (*item)->data(NameColumn, SettingRole);
        if (setting.isValid())
            ticked.insert(Setting(setting.toInt()));
    }
    return ticked;
}

void frmPasteSettings::EnablePaste()
{
    m_ui->cmdPaste->setEnabled(!Ticked().empty());
}

bool frmPasteSettings::Ask()
{
    m_confirmed = false;
    m_ui->lstSettings->setFocus();
    const QPointer self(this);
    ShellServices().ShowModal(this);
    return self && m_confirmed;
}

void frmPasteSettings::reject()
{
    Close(false);
}

void frmPasteSettings::Close(bool confirmed)
{
    m_confirmed = confirmed;
    GuardEvent(this, [this] { ShellServices().CloseModal(this); });
}

void frmPasteSettings::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        GuardEvent(this, [this] { TranslateForm(*this); });
}

} // namespace Orvane
