// SPDX-License-Identifier: MIT
#include <QStandardPaths>
#include <QTemporaryDir>
#include <qgsapplication.h>

#include <gmock/gmock.h>

namespace {

// Projects hold objects that need the application.
int RunTests(int argc, char** argv, const QString& profile)
{
    QgsApplication application(argc, argv, true, profile);
    QgsApplication::init(profile);
    QgsApplication::initQgis();
    const int result = RUN_ALL_TESTS();
    QgsApplication::exitQgis();
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir profile;
    return RunTests(argc, argv, profile.path());
}
