// SPDX-License-Identifier: MIT
#include "hostkit/windows/ModalForms.h"

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace Orvane {

/// One Run of a form: shows it, waits until it is hidden or destroyed, and restores its former state.
class ModalSession : public QObject
{
public:
    explicit ModalSession(QWidget* form) : m_form(form), m_formerModality(form->windowModality()) { }

    ~ModalSession() override
    {
        if (!m_form)
            return;
        m_form->removeEventFilter(this);
        m_form->hide();
        m_form->setWindowModality(m_formerModality);
    }

    const QWidget* Form() const { return m_form; }

    void Run()
    {
        m_form->setWindowModality(Qt::ApplicationModal);
        PlaceBeforeActiveWindow();
        m_form->installEventFilter(this);
        connect(m_form, &QObject::destroyed, &m_loop, &QEventLoop::quit);
        m_form->show();
        if (m_form && m_form->isVisible())
            m_loop.exec(QEventLoop::DialogExec);
    }

    void End()
    {
        if (m_form)
            m_form->hide();
        m_loop.quit();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // A spontaneous hide comes from the window system: the form is minimised, not closed.
        if (event->type() == QEvent::Hide && !event->spontaneous())
            m_loop.quit();
        return QObject::eventFilter(watched, event);
    }

private:
    void PlaceBeforeActiveWindow()
    {
        const QWidget* active = QApplication::activeWindow();
        if (!active || active == m_form || m_form->parentWidget())
            return;
        m_form->winId(); // creates the window handle
        m_form->windowHandle()->setTransientParent(active->windowHandle());
    }

    QPointer<QWidget> m_form;
    Qt::WindowModality m_formerModality;
    QEventLoop m_loop;
};

void ModalForms::Run(QWidget* form)
{
    if (!form)
        return;
    if (SessionOf(form)) {
        form->raise();
        form->activateWindow();
        return;
    }
    ModalSession session(form);
    m_sessions.push_back(&session);
    session.Run();
    std::erase(m_sessions, &session);
}

void ModalForms::End(QWidget* form)
{
    if (ModalSession* session = SessionOf(form))
        session->End();
}

ModalSession* ModalForms::SessionOf(const QWidget* form) const
{
    const auto found
        = std::find_if(m_sessions.begin(), m_sessions.end(), [form](const ModalSession* session) {
              return form && session->Form() == form;
          });
    return found == m_sessions.end() ? nullptr : *found;
}

} // namespace Orvane
