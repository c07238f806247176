// SPDX-License-Identifier: MIT
#include "benchmarks/layers/DialogDesk.h"

#include "component/dialog/window/frmLayerStyles.h"

namespace Orvane::Benchmarks {

namespace {

const QString EditorID = QStringLiteral("Main");

} // namespace

Desk::Desk(const QString& path, const QString& tab)
    : m_database(SqliteLayerDatabase::Open(path)), m_client(*m_database, m_services), m_state(m_client, tab),
      m_library([] { return std::make_unique<frmLayerStyles>(); }, QStringLiteral("none"))
{
    Library().Initialise(&m_state);
}

void Desk::Open()
{
    m_client.InvalidateLayerNames();
    Library().NewStyleEditor(EditorID);
    Library().GetStyleEditor(EditorID)->Visible(true);
    Paint();
}

void Desk::Close()
{
    Form().UnloadWithoutApply();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

StyleEditorWindow& Desk::Form()
{
    return dynamic_cast<StyleEditorWindow&>(*Library().GetStyleEditor(EditorID));
}

} // namespace Orvane::Benchmarks
