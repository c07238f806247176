// SPDX-License-Identifier: MIT
#include "component/dialog/window/LayerCommands.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/FirstError.h"
#include "component/common/HostInterface.h"
#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "component/dialog/window/CodeLabel.h"
#include "component/model/LayerCode.h"
#include "component/model/LayerCursors.h"

#include <OrvaneShellLib/IManyLayers.h>
#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QAbstractButton>
#include <QLocale>
#include <QPointer>

#include <utility>

namespace Orvane {

namespace {

QString StayingText(size_t systemLayers)
{
    return TranslateMsg(
        "You may not delete a 'system layer'. Selected layers that stay: ^1.",
        QLocale().toString(qulonglong(systemLayers)));
}

// The host may close the dialog while it asks about one of them.
void DeleteOneByOneOrAtOnce(LayerCommands& commands, const std::vector<qint32>& layerIDs)
{
    auto* many = layerIDs.size() > 1 ? HostInterface<IManyLayers>() : nullptr;
    if (many) {
        many->DeleteLayers(layerIDs);
        return;
    }
    const QPointer alive(&commands);
    for (size_t layer = 0; layer < layerIDs.size() && alive; ++layer)
        Client().DeleteLayer(layerIDs[layer]);
}

} // namespace

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
    m_layerIDs.clear();
    m_storedCode = isLayer ? record.lsGet(Slot::Code) : Value::Null();
    if (!m_isCodeEdited)
        m_widgets.lblCode->setText(ToTextOrNone(m_storedCode));
    m_widgets.cmdDeleteLayer->setEnabled(isLayer);
    m_widgets.lblCode->setEnabled(isLayer && !isSystemLayer);
}

void LayerCommands::ShowMany(std::vector<qint32> layerIDs, const LayerStyle& record)
{
    Show(std::nullopt, record, false);
    m_layerIDs = std::move(layerIDs);
    m_widgets.lblCode->setText(ToTextOrNone(record.lsGet(Slot::Code)));
    m_widgets.cmdDeleteLayer->setEnabled(!m_layerIDs.empty());
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
    if (!m_layerIDs.empty()) {
        DeleteMany();
        return;
    }
    if (!m_node || m_node->isGroup)
        return;
    const qint32 layerID = m_node->layerID;
    if (IsSystemLayer(Client(), layerID)) {
        ShowMessageBox(Owner(), TranslateMsg("You may not delete a 'system layer'"), BoxStyle::OkExclamation);
        return;
    }
    Delete({layerID});
}

void LayerCommands::DeleteMany()
{
    const QPointer self(this); // as above
    const std::vector<qint32> layerIDs = WithoutSystemLayers(Client(), m_layerIDs);
    const size_t systemLayers = m_layerIDs.size() - layerIDs.size();
    if (systemLayers > 0)
        ShowMessageBox(Owner(), StayingText(systemLayers), BoxStyle::OkExclamation);
    if (!self || layerIDs.empty())
        return;
    Delete(layerIDs);
}

// Some may be deleted before an error.
void LayerCommands::Delete(const std::vector<qint32>& layerIDs)
{
    const QPointer self(this); // as above
    FirstError errors;
    errors.Try([&] { DeleteOneByOneOrAtOnce(*this, layerIDs); });
    if (self)
        errors.Try([&] { emit DeleteAsked(); });
    errors.Rethrow();
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
