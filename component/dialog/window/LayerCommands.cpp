// SPDX-License-Identifier: MIT
#include "component/dialog/window/LayerCommands.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "component/dialog/window/CodeLabel.h"
#include "component/model/LayerCode.h"
#include "component/model/LayerCursors.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QAbstractButton>
#include <QPointer>

#include <utility>

namespace Orvane {

LayerCommands::LayerCommands(const Widgets& widgets, QObject* parent) : QObject(parent), m_widgets(widgets)
{
    connect(widgets.cmdNewLayer, &QAbstractButton::clicked, this, [this] {
        GuardEvent(Owner(), [this] { NewLayer(); });
    });
    connect(widgets.cmdDeleteLayer, &QAbstractButton::clicked, this, [this] {
        GuardEvent(Owner(), [this] { DeleteLayer(); });
    });
    connect(widgets.lblCode, &CodeLabel::EditRequested, this, &LayerCommands::EditCode);
}

void LayerCommands::Show(
    const std::optional<NodeReference>& node, const LayerStyle& record, bool isSystemLayer)
{
    m_isCodeEdited = false;
    Follow(node, record, isSystemLayer);
}

void LayerCommands::Follow(
    const std::optional<NodeReference>& node, const LayerStyle& record, bool isSystemLayer)
{
    const bool isLayer = node && !node->isGroup;
    m_node = node;
    m_storedCode = isLayer ? record.lsGet(Slot::Code) : Value::Null();
    if (!m_isCodeEdited)
        m_widgets.lblCode->setText(ToTextOrNone(m_storedCode));
    m_widgets.cmdDeleteLayer->setEnabled(isLayer);
    m_widgets.lblCode->setEnabled(isLayer && !isSystemLayer);
}

QString LayerCommands::CodeText() const
{
    return m_widgets.lblCode->text();
}

void LayerCommands::DropCodeEdit()
{
    if (!std::exchange(m_isCodeEdited, false))
        return;
    m_widgets.lblCode->setText(ToTextOrNone(m_storedCode));
    emit CodeEditDropped(m_widgets.lblCode);
}

std::optional<QString> LayerCommands::CodeToStore() const
{
    const bool comesBack = m_storedCode.IsNumber() && LeadingNumber(CodeText()) == ToDouble(m_storedCode);
    return m_isCodeEdited || comesBack ? std::optional(CodeText()) : std::nullopt;
}

void LayerCommands::NewLayer()
{
    const QPointer self(this); // the host may ask the user, and may close the dialog meanwhile
    const qint32 layerID = Client().CreateLayer();
    if (self)
        emit LayerCreated(layerID);
}

void LayerCommands::DeleteLayer()
{
    if (!m_node || m_node->isGroup)
        return;
    const qint32 layerID = m_node->layerID;
    if (IsSystemLayer(Client(), layerID)) {
        ShowMessageBox(Owner(), TranslateMsg("You may not delete a 'system layer'"), BoxStyle::OkExclamation);
        return;
    }
    const QPointer self(this); // as above
    Client().DeleteLayer(layerID);
    if (self)
        emit DeleteAsked(layerID);
}

void LayerCommands::EditCode()
{
    const QPointer self(this);
    const PromptAnswer answer = Client().PromptText(
        {.title = TranslateMsg("Edit code"),
         .defaultText = CodeText(),
         .kind = EntryKind::Integer,
         .minimum = std::numeric_limits<qint16>::min(),
         .maximum = std::numeric_limits<qint16>::max()});
    if (self && answer.accepted && NumberInText(answer.text))
        SetCode(answer.text.trimmed());
}

void LayerCommands::SetCode(const QString& answer)
{
    const double code = *NumberInText(answer);
    // The layer's own stored code also counts as assigned, but to this layer.
    const bool isOwn = m_storedCode.IsNumber() && ToDouble(m_storedCode) == code;
    if (!isOwn && Client().IsCodeAssigned(ToInt16(code))) {
        ShowMessageBox(
            Owner(), TranslateMsg("Code ^1 has already been assigned. Please assign another code.", answer),
            BoxStyle::OkExclamation);
        return;
    }
    if (code == LeadingNumber(CodeText()) && !CodeText().isEmpty())
        return;
    m_widgets.lblCode->setText(answer);
    m_isCodeEdited = true;
    emit CodeEdited(m_widgets.lblCode);
}

QWidget* LayerCommands::Owner() const
{
    return m_widgets.lblCode->window();
}

} // namespace Orvane
