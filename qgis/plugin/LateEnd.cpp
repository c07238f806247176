// SPDX-License-Identifier: MIT
#include "qgis/plugin/LateEnd.h"

#include "hostkit/StyleEditorPlugin.h"
#include "qgis/plugin/ProjectSession.h"
#include "qgis/plugin/SchemeCommands.h"

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

LateEnd::Parts::Parts() = default;
LateEnd::Parts::~Parts() = default;

void LateEnd::Of(std::unique_ptr<Parts> parts)
{
    const ProjectSession& session = *parts->session;
    if (!session.IsBusy())
        parts->component.reset();
    parts->session->Stop();
    if (session.IsBusy() || IsInnerLoop(0))
        new LateEnd(std::move(parts));
}

LateEnd::LateEnd(std::unique_ptr<Parts> parts) : m_parts(std::move(parts))
{
    connect(&m_again, &QTimer::timeout, this, &LateEnd::EndIfIdle);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { delete this; });
    m_again.start(IdleInterval);
}

LateEnd::~LateEnd() = default;

void LateEnd::EndIfIdle()
{
    if (!m_parts->session->IsBusy() && !IsInnerLoop(1))
        deleteLater();
}

} // namespace Orvane
