// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectNotes.h"

#include "hostkit/common/MapNotes.h"
#include "qgis/project/ProjectScope.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <qgsproject.h>

namespace Orvane {

namespace {

const QString NotesEntry = QStringLiteral("LayerNotes");

QString JsonOf(const QMap<QString, QString>& notes)
{
    QJsonObject texts;
    for (auto note = notes.begin(); note != notes.end(); ++note)
        texts.insert(note.key(), note.value());
    return QString::fromUtf8(QJsonDocument(texts).toJson(QJsonDocument::Compact));
}

QMap<QString, QString> NotesIn(const QString& json)
{
    const QJsonObject texts = QJsonDocument::fromJson(json.toUtf8()).object();
    QMap<QString, QString> notes;
    for (auto text = texts.begin(); text != texts.end(); ++text)
        notes.insert(text.key(), text.value().toString());
    return notes;
}

} // namespace

void ProjectNotes::Read()
{
    MapNotes::ReplaceAll(m_store, NotesIn(m_project.readEntry(ProjectScope, NotesEntry)));
}

void ProjectNotes::Write()
{
    const QMap<QString, QString> notes = MapNotes::ReadAll(m_store);
    const QString before = m_project.readEntry(ProjectScope, NotesEntry);
    if (notes == NotesIn(before))
        return; // also if the entry is one that cannot be read
    if (notes.isEmpty())
        m_project.removeEntry(ProjectScope, NotesEntry);
    else
        m_project.writeEntry(ProjectScope, NotesEntry, JsonOf(notes));
}

void ProjectNotes::WriteAfter(const std::function<void()>& writeLayers)
{
    try {
        writeLayers();
    } catch (...) {
        Read();
        throw;
    }
    Write();
}

} // namespace Orvane
