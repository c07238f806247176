// SPDX-License-Identifier: MIT
#include "hostkit/windows/LongWork.h"

#include "hostkit/windows/QuietProgram.h"
#include "store/ILayerStore.h"

#include <QApplication>
#include <QProgressDialog>
#include <QTimer>

#include <utility>

namespace Orvane {

namespace {

using std::chrono::milliseconds;

constexpr int Steps = 1000;

struct WorkTimes {
    milliseconds beforeDialog = LongWork::UsualPatience;
    milliseconds betweenLooks = LongWork::UsualPause;
};

WorkTimes& Times()
{
    static WorkTimes times;
    return times;
}

bool& UnderWay()
{
    static bool isUnderWay = false;
    return isUnderWay;
}

bool HasWindows()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace

LongWork::LongWork(ILayerStore& store, const QString& what, QWidget* parent, Cancel cancel)
    : m_store(store), m_what(what), m_parent(parent), m_cancel(cancel)
{
    if (UnderWay() || !HasWindows())
        return;
    m_sinceStart.start();
    m_store.SetWatcher([this](double done) { return Look(done); });
    m_isOutermost = true;
    UnderWay() = true;
}

LongWork::~LongWork()
{
    if (!m_isOutermost)
        return;
    UnderWay() = false;
    try {
        m_store.SetWatcher({});
    } catch (const std::exception&) { // refused only while the watcher runs, which ends before this object
    }
}

bool LongWork::IsUnderWay()
{
    return UnderWay();
}

// A timer with an interval is withheld during the work; a queued call would not be.
void LongWork::RunAfter(QObject* context, std::function<void()> act)
{
    if (!IsUnderWay())
        return act();
    QTimer::singleShot(1, context, [context, act = std::move(act)] { RunAfter(context, act); });
}

void LongWork::SetPatience(milliseconds beforeDialog, milliseconds betweenLooks)
{
    Times() = {beforeDialog, betweenLooks};
}

// No event is handled before the dialog is shown: until then the windows accept input.
bool LongWork::Look(double done)
{
    const bool isSoon = m_dialog ? milliseconds(m_sinceLook.elapsed()) < Times().betweenLooks
                                 : milliseconds(m_sinceStart.elapsed()) < Times().beforeDialog;
    if (isSoon)
        return true;
    if (!m_dialog)
        Show();
    ShowShare(done);
    QCoreApplication::processEvents();
    m_sinceLook.start();
    return !m_cancelled;
}

void LongWork::Show()
{
    QWidget* active = QApplication::activeWindow();
    m_dialog = std::make_unique<QProgressDialog>(m_what, tr("Cancel"), 0, 0, active ? active : m_parent);
    m_quiet = std::make_unique<QuietProgram>(m_dialog.get());
    m_dialog->setObjectName(QStringLiteral("dlgProgress"));
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setAutoReset(false);
    m_dialog->setAutoClose(false);
    if (m_cancel == Cancel::Impossible) {
        m_dialog->setCancelButton(nullptr);
        m_dialog->setWindowFlag(Qt::WindowCloseButtonHint, false);
    }
    QObject::connect(m_dialog.get(), &QProgressDialog::canceled, m_dialog.get(), [this] {
        m_cancelled = m_cancel == Cancel::Possible;
    });
    m_dialog->show();
}

void LongWork::ShowShare(double done)
{
    if (m_cancelled || done < 0)
        return;
    m_dialog->setMaximum(Steps);
    m_dialog->setValue(int(done * (Steps - 1)));
}

} // namespace Orvane
