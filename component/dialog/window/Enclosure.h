// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <vector>

namespace Orvane {

/// The widgets in which a host has put the form: a dock, a tab, a dialog, an MDI window, and all that these
/// stand in. A form that is a window of its own has none.
///
/// When one of them is closed, the form is asked first, as if its own window were closed: it may keep the
/// widget open, and is closed together with it. Inside an enclosure the form's shortcuts are valid only while
/// it has the focus, so that they do not take those of the host's menus.
class Enclosure : public QObject
{
    Q_OBJECT

public:
    /// mayClose: asks the user; false keeps the enclosing widget open. It may destroy the form. close: closes
    /// the form, which may destroy it and all that encloses it. form: not owned; outlives this object.
    Enclosure(QWidget& form, std::function<bool()> mayClose, std::function<void()> close);

    /// True from the user's consent until the enclosing widget has closed or the host has refused.
    bool IsClosing() const { return m_closing; }
    /// The form is being closed: nothing is asked any more.
    void Leave();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Follow();
    void Watch(QWidget* widget);
    void Release(QWidget* widget);
    bool PassClose(QWidget* closing, QEvent* event);
    void OnFinished(QWidget* dialog);

    QWidget& m_form;
    std::function<bool()> m_mayClose;
    std::function<void()> m_close;
    std::vector<QPointer<QWidget>> m_watched;
    bool m_closing = false;
    bool m_left = false;
};

} // namespace Orvane
