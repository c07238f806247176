// SPDX-License-Identifier: MIT
#include "component/dialog/window/EditorLayout.h"

#include "component/common/Messages.h"
#include "ui_frmLayerStyles.h"

#include <QScreen>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace Orvane {

namespace {

constexpr int FewRowsBelow = 4; // of settings below the list, when all else has no room

// The widest texts that the value labels show.
int WidestValue(const QLabel& label)
{
    const QFontMetrics metrics = label.fontMetrics();
    int widest = 0;
    for (const QString& text :
         {TranslateMsg("various"), TranslateMsg("dont care"), TranslateMsg("1:^1", QString("100000000")),
          TranslateMsg("^1 (highest)", QString("1")), TranslateMsg("^1 (lowest)", QString("255"))})
        widest = std::max(widest, metrics.horizontalAdvance(text));
    return widest + 2 * (label.frameWidth() + label.margin()) + metrics.horizontalAdvance(QLatin1Char('x'));
}

// A tool button's own size hint leaves its text hardly any room at the sides.
QSize RoomySize(const QToolButton& button)
{
    const QFontMetrics metrics = button.fontMetrics();
    return button.sizeHint() + QSize(2 * metrics.horizontalAdvance(QLatin1Char('x')), metrics.height() / 3);
}

// Layouts are notified of a new text only by a posted event, and hidden ones not at all: update them all.
void ForgetSizes(QWidget& parent)
{
    QList<QWidget*> widgets = parent.findChildren<QWidget*>();
    std::reverse(widgets.begin(), widgets.end()); // the innermost first
    for (QWidget* widget : widgets) {
        if (QLayout* layout = widget->layout()) {
            layout->invalidate();
            layout->activate(); // invalidates the layouts in it
        }
        widget->updateGeometry();
    }
    parent.layout()->invalidate();
}

QString HintOf(EditorLayout::Cover cover)
{
    if (cover == EditorLayout::Cover::Schemes)
        return TranslateMsg("Edit layer settings on the Groups and Layers tabs.");
    return TranslateMsg("Select a layer or a group to see its settings.");
}

} // namespace

EditorLayout::EditorLayout(QDialog& form, Ui::frmLayerStyles& ui)
    : m_form(form), m_ui(ui), m_width(form), m_gap(ui.layLayerStyle->contentsMargins().left())
{
}

void EditorLayout::FitTexts()
{
    for (QLabel* label : {m_ui.lblScaleMin, m_ui.lblScaleMax, m_ui.lblPriority})
        label->setMinimumWidth(WidestValue(*label));
    for (QToolButton* button : {m_ui.Normal, m_ui.Backdrop, m_ui.Hidden})
        button->setMinimumSize(RoomySize(*button));
    m_ui.picLayerStyle->setMinimumWidth(0);
    m_ui.picLayerStyle->setMaximumWidth(QWIDGETSIZE_MAX);
    SetSettingsMargin(false);
    ForgetSizes(m_form);
    m_ui.picLayerStyle->setMinimumWidth(m_ui.picLayerStyle->layout()->totalSizeHint().width());
    FitSettings();
    ShowExpansion();
    ShowCover(m_cover);
    m_form.layout()->activate();
    Arrange();
}

void EditorLayout::TakeDesignedSize()
{
    m_form.layout()->activate();
    if (!m_form.isWindow())
        return;
    m_form.resize(m_form.sizeHint().boundedTo(m_form.screen()->availableGeometry().size()));
}

void EditorLayout::SetExpanded(bool expanded)
{
    if (m_expanded == expanded)
        return;
    m_expanded = expanded;
    const int before = m_form.width(); // the layout may widen the form at once
    ShowExpansion();
    m_form.layout()->activate();
    if (!m_form.isWindow() || m_form.isMaximized() || m_form.isFullScreen())
        return;
    const int change = expanded ? SettingsWidth() : -SettingsWidth();
    // A collapsed dialog may be wider than wanted because of its buttons: restoring must not depend on that.
    const bool isBack = std::abs(before - m_widthAfter) <= RoundedPixels(m_form);
    m_width.Resize(isBack ? m_widthBefore : before + change);
    m_widthBefore = before;
    m_widthAfter = m_form.width();
}

void EditorLayout::Arrange()
{
    const bool isBelow = IsTooNarrow();
    if (m_isBelow == isBelow)
        return;
    m_isBelow = isBelow;
    m_ui.layBody->setDirection(isBelow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_ui.scrSettings->SetFewestRows(isBelow ? FewRowsBelow : SettingsScroller::UsualRows);
    FitSettings();
    m_form.layout()->activate();
    m_form.updateGeometry();
}

QSize EditorLayout::SmallestSize() const
{
    const int buttons = m_ui.picApplyCancel->minimumSizeHint().width();
    const int settings = m_expanded ? SettingsWidth() : 0;
    const int width = std::max({ListsWidth(), settings, buttons}) + SpaceAround();
    return {width, m_form.layout()->totalMinimumSize().height()};
}

void EditorLayout::ShowTab(ListTab tab)
{
    m_ui.stkLists->setCurrentIndex(int(tab) - 1);
    m_ui.picLayerControls->setVisible(tab == ListTab::Layers);
    const bool editsLayers = tab != ListTab::Schemes;
    m_editsLayers = editsLayers;
    ShareHeight();
    m_ui.cboStyle->setVisible(editsLayers);
    m_ui.lblStyle->setVisible(editsLayers);
    m_ui.framPriority->setEnabled(editsLayers);
    m_ui.framVisScaleRange->setEnabled(editsLayers);
}

void EditorLayout::ShowCover(Cover cover)
{
    m_cover = cover;
    const bool covered = cover != Cover::None;
    m_ui.lblHint->setText(covered ? HintOf(cover) : QString());
    m_ui.stkSettings->setCurrentWidget(
        covered ? static_cast<QWidget*>(m_ui.picHideLayerSettings) : m_ui.scrSettings);
}

// The scroll bar of the settings stays usable. A height that depended on the width would take that of the
// lists.
void EditorLayout::ShowWhyNotEdited(const QString& reason)
{
    const bool isEdited = reason.isEmpty();
    QLabel& why = *m_ui.lblWhyNotEdited;
    why.setText(reason);
    QSizePolicy policy = why.sizePolicy();
    policy.setHeightForWidth(false);
    why.setSizePolicy(policy);
    why.setFixedHeight(isEdited ? 0 : why.heightForWidth(SettingsWidth() - SpaceAround()));
    why.setVisible(!isEdited);
    m_ui.picSettings->setEnabled(isEdited);
    m_ui.picLayerControls->setEnabled(isEdited);
}

void EditorLayout::ShowExpansion()
{
    m_ui.picLayerStyle->setVisible(m_expanded);
    m_ui.cmdResize->setText(m_expanded ? QStringLiteral("<<") : QStringLiteral(">>"));
    m_ui.cmdResize->setAccessibleName(
        m_expanded ? TranslateMsg("Hide settings") : TranslateMsg("Show settings"));
}

int EditorLayout::SettingsWidth() const
{
    return m_ui.picLayerStyle->minimumWidth();
}

// On each tab the same, although the others hide the buttons for layers.
int EditorLayout::ListsWidth() const
{
    return std::max(
        m_ui.picLists->minimumSizeHint().width(), m_ui.picLayerControls->minimumSizeHint().width());
}

int EditorLayout::SpaceAround() const
{
    const QMargins margins = m_form.layout()->contentsMargins();
    return margins.left() + margins.right();
}

bool EditorLayout::IsTooNarrow() const
{
    const int both = ListsWidth() + m_ui.layBody->spacing() + SettingsWidth();
    return !m_form.isWindow() && m_form.width() < both + SpaceAround();
}

// Below the list they are as wide as the list, and share the height with it.
void EditorLayout::FitSettings()
{
    SetSettingsMargin(m_isBelow);
    ShareHeight();
    m_ui.picLayerStyle->setMaximumWidth(m_isBelow ? QWIDGETSIZE_MAX : SettingsWidth());
    m_ui.picLayerStyle->setSizePolicy(
        m_isBelow ? QSizePolicy::Preferred : QSizePolicy::Fixed, QSizePolicy::Preferred);
}

// The schemes need more height than a list, but only on their tab, where no layer is edited.
void EditorLayout::ShareHeight()
{
    const int lists = m_editsLayers ? 1 : 3;
    m_ui.layBody->setStretchFactor(m_ui.picLists, m_isBelow ? lists : 0);
    m_ui.layBody->setStretchFactor(m_ui.picLayerStyle, m_isBelow ? 1 : 0);
    m_ui.picScheme->setSizePolicy(
        QSizePolicy::Preferred, m_isBelow ? QSizePolicy::Ignored : QSizePolicy::Preferred);
    m_ui.stkLists->updateGeometry(); // a hidden page does not notify it
}

// The margin is towards the list.
void EditorLayout::SetSettingsMargin(bool isBelow)
{
    m_ui.layLayerStyle->setContentsMargins(isBelow ? 0 : m_gap, isBelow ? m_gap : 0, 0, 0);
}

} // namespace Orvane
