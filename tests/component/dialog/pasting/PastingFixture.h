// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/NodeMenuFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPushButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace Orvane::Testing {

/// A user who copies and pastes settings, in a host that shows and hides the window that asks.
class PastingFixture : public NodeMenuFixture
{
protected:
    void SetUp() override
    {
        QGuiApplication::clipboard()->clear();
        host.Shell().OnShowModal = [this](QWidget* window) {
            m_window = window;
            ++m_asked;
            window->show();
            m_user();
            if (m_window)
                m_window->hide();
            m_window = nullptr;
        };
        host.Shell().OnCloseModal = [](QWidget* window) { window->hide(); };
        NodeMenuFixture::SetUp();
    }

    void TearDown() override
    {
        NodeMenuFixture::TearDown();
        QGuiApplication::clipboard()->clear();
    }

    void Copy(const QString& node)
    {
        Choose({node});
        Pick("Copy Settings");
    }

    /// Pastes into the nodes, or without any into the chosen ones; user: what the user does in the window
    /// before it is closed.
    void PasteInto(const QStringList& nodes, const std::function<void()>& user)
    {
        if (!nodes.isEmpty())
            Choose(nodes);
        m_user = user;
        const int before = m_asked;
        Pick("Paste Settings...");
        EXPECT_EQ(m_asked, before + 1) << "the window has not opened";
        m_user = [] {};
    }

    // In the window that asks.

    QTreeWidget& Rows() { return *m_window->findChild<QTreeWidget*>("lstSettings"); }
    void Press(const char* button)
    {
        QTest::mouseClick(m_window->findChild<QPushButton*>(button), Qt::LeftButton);
    }
    bool CanPaste() { return m_window->findChild<QPushButton*>("cmdPaste")->isEnabled(); }

    QTreeWidgetItem* Row(const QString& name)
    {
        return Rows().findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

    /// Presses the space bar on the row.
    void Toggle(const QString& name)
    {
        Rows().setCurrentItem(Row(name));
        QTest::keyClick(&Rows(), Qt::Key_Space);
    }

    /// The rows without those of frames; those with a tick start with "x ".
    QStringList Lines()
    {
        QStringList lines;
        for (QTreeWidgetItemIterator item(&Rows()); *item; ++item) {
            if ((*item)->childCount() == 0)
                lines.append(((*item)->checkState(0) == Qt::Checked ? "x " : "") + (*item)->text(0));
        }
        return lines;
    }

    void PasteOnly(const QString& name)
    {
        Press("cmdNone");
        Toggle(name);
        Press("cmdPaste");
    }

    void PutOnClipboard(const QByteArray& settings)
    {
        auto* content = new QMimeData;
        content->setData(QStringLiteral("application/x-orvane-layer-settings+json"), settings);
        QGuiApplication::clipboard()->setMimeData(content);
    }

    int TimesAsked() const { return m_asked; }
    QWidget& Window() { return *m_window; }

private:
    QPointer<QWidget> m_window;
    std::function<void()> m_user = [] {};
    int m_asked = 0;
};

} // namespace Orvane::Testing
