// SPDX-License-Identifier: MIT
#include "component/dialog/pasting/SettingsClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

namespace Orvane {

namespace {

const QString CopiedMimeType = QStringLiteral("application/x-orvane-layer-settings+json");

} // namespace

void SettingsClipboard::Put(const CopiedSettings& settings, const QString& text)
{
    auto content = std::make_unique<QMimeData>();
    content->setData(CopiedMimeType, settings.ToBytes());
    content->setText(text);
    QGuiApplication::clipboard()->setMimeData(content.release());
}

bool SettingsClipboard::HasSettings()
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content && content->hasFormat(CopiedMimeType);
}

std::optional<CopiedSettings> SettingsClipboard::Read()
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content ? CopiedSettings::FromBytes(content->data(CopiedMimeType)) : std::nullopt;
}

} // namespace Orvane
