// SPDX-License-Identifier: MIT
#include "component/common/StyleEditorWindow.h"

namespace Orvane {

StyleEditorWindow::StyleEditorWindow(QWidget* parent) : QDialog(parent)
{
}

StyleEditorWindow::~StyleEditorWindow() = default;

void StyleEditorWindow::SetEditorID(const QString& editorID)
{
    m_editorID = editorID;
}

QString StyleEditorWindow::IStyleEditorForm_EditorID() const
{
    return m_editorID;
}

} // namespace Orvane
