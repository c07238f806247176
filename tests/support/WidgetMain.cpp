// SPDX-License-Identifier: MIT
#include "support/QtMessageGuard.h"

#include <QApplication>
#include <QFont>
#include <QStandardPaths>
#include <QWidget>

#include <gmock/gmock.h>

namespace {

// A window that outlives its test would affect the next test.
class NoWindowSurvives : public testing::EmptyTestEventListener
{
    void OnTestEnd(const testing::TestInfo&) override
    {
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible())
                ADD_FAILURE() << "window survives: " << qPrintable(window->objectName());
        }
    }
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("XDG_RUNTIME_DIR", qgetenv("TMPDIR").isEmpty() ? "/tmp" : qgetenv("TMPDIR"));
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    QApplication::setFont(
        QFont(QStringLiteral("DejaVu Sans"), 9)); // what Qt takes here differs by its version
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    testing::InitGoogleMock(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new NoWindowSurvives);
    Orvane::Testing::FailOnQtWarnings();
    return RUN_ALL_TESTS();
}
