// SPDX-License-Identifier: MIT
#include "qgis/plugin/QgisTexts.h"

#include "hostkit/HostKitTexts.h"

#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>
#include <array>

namespace Orvane {

namespace {

const QString HostKitName = QStringLiteral("OrvaneHostKitTexts");
const QString OwnName = QStringLiteral("OrvaneQgisTexts");

// Those of classes that are no QObjects; the others begin with the namespace.
constexpr std::array PlainContexts{
    "ChangeStep",        "ConflictBox",    "FileReplacement",  "FillPatterns",      "LayerDeletion",
    "LayerFactory",      "LayerList",      "LayerSchemes",     "LayerSteps",        "LayerStore",
    "LongWork",          "ProjectMirror",  "ProjectSchemes",   "ProjectStyles",     "QgisClient",
    "RefusalText",       "SchemeDocument", "SchemeFile",       "SchemeFileDialogs", "SchemeReport",
    "SchemeSteps",       "SchemeTables",   "SchemeValueTexts", "StandardClient",    "StandardShellServices",
    "StyleEditorPlugin", "TextPrompt",     "ThemeChoice",      "ThemeStep",         "TracingLibrary",
    "UndoHistory"};

/// Asks the host kit's translator, which answers any context, for own texts only.
class OwnTranslator : public QTranslator
{
public:
    OwnTranslator(QTranslator& all, QObject* parent) : QTranslator(parent), m_all(all)
    {
        setObjectName(OwnName);
    }

    bool isEmpty() const override { return m_all.isEmpty(); }

    QString translate(const char* context, const char* text, const char* remark, int count) const override
    {
        return QgisTexts::IsOwn(context) ? m_all.translate(context, text, remark, count) : QString();
    }

private:
    QTranslator& m_all;
};

QTranslator* Found(const QString& name)
{
    return qApp->findChild<QTranslator*>(name, Qt::FindDirectChildrenOnly);
}

} // namespace

bool QgisTexts::IsOwn(const char* context)
{
    const QByteArray name(context);
    return name.startsWith("Orvane::")
        || std::find(PlainContexts.begin(), PlainContexts.end(), name) != PlainContexts.end();
}

void QgisTexts::Install(const QLocale& locale, const QString& folder)
{
    Remove();
    HostKitTexts::Install(locale, folder);
    QTranslator* all = Found(HostKitName);
    if (!all)
        return;
    QCoreApplication::removeTranslator(all);
    QCoreApplication::installTranslator(new OwnTranslator(*all, qApp));
}

void QgisTexts::Remove()
{
    delete Found(OwnName);
    delete Found(HostKitName);
}

} // namespace Orvane
