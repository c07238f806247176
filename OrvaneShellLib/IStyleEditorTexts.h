// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QIODevice;

namespace Orvane {

/// Gives the component texts in further languages, or other words in a language that it has. The entry object
/// implements it since contract 1.4; a host gets it with dynamic_cast:
///
///     if (auto* texts = dynamic_cast<IStyleEditorTexts*>(&plugin.Library()))
///         texts->AddTextFolder(folder);
///
/// It may be called before and after IStyleEditorLibrary::Initialise. Open editors show the new texts at
/// once, edits in them stay. The texts are shared by all entry objects of the process and are forgotten with
/// the last one.
///
/// What is shown: of the languages of the default locale (QLocale::uiLanguages) the first for which there are
/// texts, added ones or the component's own. In that language an added text comes before the component's own,
/// and of the added ones the latest. A text without a translation stays English.
///
/// All calls are made on the user-interface thread.
class IStyleEditorTexts
{
public:
    virtual ~IStyleEditorTexts() = default;
    IStyleEditorTexts(const IStyleEditorTexts&) = delete;
    IStyleEditorTexts& operator=(const IStyleEditorTexts&) = delete;

    /// The number of the errors that are raised here.
    static constexpr int UnusableTexts = 4002;

    /// Adds the finished translations of a Qt Linguist document (.ts); its contexts do not matter, the keys
    /// are the English texts. language: a tag such as "nl" or "pt-BR"; "_" is taken for "-".
    /// document: open for reading, read to its end; not owned, and not used after the call. Raises
    /// UnusableTexts, with the language in its text, if the language is no tag, or if the document cannot be
    /// read, is no such document, is larger than 8 MB or has no finished translation. Nothing is then added.
    void AddTexts(const QString& language, QIODevice& document)
    {
        IStyleEditorTexts_AddTexts(language, document);
    }

    /// Adds every "<language>/POBEX.LRT" and "POBEX.<language>.ts" of the folder, as AddTexts does. The files
    /// are read now and not used later. Raises UnusableTexts, with the file or the folder in its text, if a
    /// file cannot be used or the folder has none. Nothing is then added.
    void AddTextFolder(const QString& folder) { IStyleEditorTexts_AddTextFolder(folder); }

protected:
    IStyleEditorTexts() = default;

private:
    virtual void IStyleEditorTexts_AddTexts(const QString& language, QIODevice& document) = 0;
    virtual void IStyleEditorTexts_AddTextFolder(const QString& folder) = 0;
};

} // namespace Orvane
