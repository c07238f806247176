// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <QHash>
#include <QString>

namespace Orvane::Testing {

/// A client that keeps notes in memory. Base: the client that it otherwise is, a ForwardingClient.
///
///     NotesClient<ForwardingClient> client(host);
template <typename Base> class NotesClient : public Base
{
public:
    using Base::Base;
    QHash<QString, QString> notes;
    bool keeps = true;
    bool raises = false; ///< when a note is read

private:
    bool IMapNotes_KeepsNotes() const override { return keeps; }
    QString IMapNotes_Note(const QString& key) override
    {
        if (raises)
            throw RunTimeError(ErrorNumber::DatabaseLocked, "no notes");
        return notes.value(key);
    }
    void IMapNotes_SetNote(const QString& key, const QString& text) override { notes[key] = text; }
};

} // namespace Orvane::Testing
