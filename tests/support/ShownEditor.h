// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QWidget>

namespace Orvane::Testing {

/// The shown layer control with that caption, as a window or in a dock; nullptr for none. A closed one exists
/// until the event loop deletes it.
inline QWidget* ShownEditor(const QString& caption = QStringLiteral("Layer Control"))
{
    for (QWidget* widget : QApplication::allWidgets()) {
        const bool isEditor = widget->objectName() == QLatin1String("frmLayerStyles") && widget->isVisible();
        if (isEditor && widget->windowTitle() == caption)
            return widget;
    }
    return nullptr;
}

} // namespace Orvane::Testing
