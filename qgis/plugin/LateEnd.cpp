// SPDX-License-Identifier: MIT
#include "qgis/plugin/LateEnd.h"

#include "hostkit/StyleEditorPlugin.h"
#include "qgis/plugin/ProjectSession.h"

#include <QCoreApplication>
#include <QThread>

namespace Orvane {

namespace {

constexpr int IdleInterval = 50; // milliseconds

// In an inner event loop, somebody further out may still use the session.
bool IsInnerLoop(int outermost)
{
    return QThread::currentThread()->loopLevel() > outermost;
}

} // namespace

void LateEnd::Of(std::unique_ptr<ProjectSession> session, std::unique_ptr<StyleEditorPlugin> component)
{
    if (!session->IsBusy())
        component.reset();
    session->Stop();
    if (session->IsBusy() || IsInnerLoop(0))
        new LateEnd(std::move(session), std::move(component));
}

LateEnd::LateEnd(std::unique_ptr<ProjectSession> session, std::unique_ptr<StyleEditorPlugin> component)
    : m_session(std::move(session)), m_component(std::move(component))
{
    connect(&m_again, &QTimer::timeout, this, &LateEnd::EndIfIdle);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { delete this; });
    m_again.start(IdleInterval);
}

LateEnd::~LateEnd() = default;

void LateEnd::EndIfIdle()
{
    if (!m_session->IsBusy() && !IsInnerLoop(1))
        deleteLater();
}

} // namespace Orvane
