// SPDX-License-Identifier: MIT
#include "sweep/DialogUser.h"

#include "component/dialog/window/frmLayerStyles.h"
#include "component/entry/StyleEditorLib.h"
#include "ovctrls/CheckBoxPlus.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabBar>
#include <QTreeView>
#include <QtTest>

#include <utility>

namespace Orvane::Testing {

namespace {

const QString EditorID = QStringLiteral("Main");

[[noreturn]] void CannotUse(const QString& what)
{
    throw RunTimeError(1, QStringLiteral("The user cannot use ") + what);
}

// A click on what is hidden would do nothing.
QWidget& Usable(QWidget* control, const QString& name)
{
    if (!control || !control->isVisible() || !control->isEnabled())
        CannotUse(name);
    return *control;
}

QModelIndex FindNode(const QAbstractItemModel& model, const QString& text, const QModelIndex& parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QModelIndex found = index.data().toString() == text ? index : FindNode(model, text, index);
        if (found.isValid())
            return found;
    }
    return {};
}

} // namespace

DialogUser::DialogUser(const SweepBench& bench)
    : m_host(bench.folder), m_client(m_host.client, {"nothing", 1, RunTimeError(1, QString())}),
      m_fault(bench.host), m_library(std::make_unique<StyleEditorLib>(
                               [] { return std::make_unique<frmLayerStyles>(); }, QStringLiteral("nowhere")))
{
    qApp->installEventFilter(this);
    m_fault.Attach(&m_client);
    Library().Initialise(&m_client);
    Library().NewStyleEditor(EditorID)->Visible(true);
    Finish();
}

DialogUser::~DialogUser()
{
    m_fault.Attach(nullptr);
    m_library.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

IStyleEditorLibrary& DialogUser::Library() const
{
    return *m_library;
}

QWidget& DialogUser::Form() const
{
    return Usable(dynamic_cast<QWidget*>(Library().GetStyleEditor(EditorID)), EditorID);
}

QWidget& DialogUser::Find(const char* name) const
{
    auto* control = Form().findChild<QWidget*>(QLatin1String(name));
    auto* box = control ? control->findChild<QCheckBox*>() : nullptr;
    return Usable(qobject_cast<CheckBoxPlus*>(control) && box ? box : control, QLatin1String(name));
}

QTreeView& DialogUser::ShownList() const
{
    const bool showsGroups = dynamic_cast<QTabBar&>(Find("tsLists")).currentIndex() == 0;
    return dynamic_cast<QTreeView&>(Find(showsGroups ? "tvLayers1" : "tvLayers2"));
}

void DialogUser::ClickTab(int tab)
{
    auto& tabs = dynamic_cast<QTabBar&>(Find("tsLists"));
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
    QCoreApplication::processEvents();
}

void DialogUser::ClickNode(const QString& text)
{
    QTreeView& list = ShownList();
    const QModelIndex node = FindNode(*list.model(), text);
    if (!node.isValid())
        CannotUse(text);
    list.scrollTo(node);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(node).center());
    QCoreApplication::processEvents();
}

void DialogUser::Click(const char* control)
{
    QTest::mouseClick(&Find(control), Qt::LeftButton);
    QCoreApplication::processEvents();
}

void DialogUser::DoubleClick(const char* control)
{
    QTest::mouseDClick(&Find(control), Qt::LeftButton);
    QCoreApplication::processEvents();
}

void DialogUser::Rename(const QString& name)
{
    QTreeView& list = ShownList();
    QTest::keyClick(&list, Qt::Key_F2);
    auto& field = Usable(list.findChild<QLineEdit*>(QStringLiteral("txtNodeName")), name);
    dynamic_cast<QLineEdit&>(field).setText(name);
    QTest::keyClick(&field, Qt::Key_Return);
    QCoreApplication::processEvents();
}

void DialogUser::Finish()
{
    QCoreApplication::processEvents();
    const QStringList told = std::exchange(m_told, {});
    if (!told.isEmpty())
        throw RunTimeError(1, told.join(QStringLiteral(" / ")));
}

bool DialogUser::eventFilter(QObject* watched, QEvent* event)
{
    auto* box = qobject_cast<QMessageBox*>(watched);
    if (box && event->type() == QEvent::Show) {
        m_told.append(box->text());
        QMetaObject::invokeMethod(
            box, [box] { box->reject(); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Orvane::Testing
