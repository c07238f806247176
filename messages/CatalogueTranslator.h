// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/messages/MessageCatalogue.h>

#include <QTranslator>

namespace Orvane {

/// Lets a host's tr() use a Qt Linguist document directly:
///
///     CatalogueTranslator translator(MessageCatalogue::FromFile(path));
///     QCoreApplication::installTranslator(&translator);
///
/// Compiled catalogues are not used, because reading a damaged one can end the process. An entry in the
/// requested context comes first, then one in any context, so the toolkit's own "Cancel" gets the host's
/// translation. Disambiguations and plural forms are not supported: a host does not use "%n".
class CatalogueTranslator : public QTranslator
{
    Q_OBJECT

public:
    /// Translates the texts of the catalogue. parent: owns the translator; may be nullptr.
    explicit CatalogueTranslator(MessageCatalogue catalogue, QObject* parent = nullptr);
    ~CatalogueTranslator() override;

    /// True when there are no translations; Qt then skips this translator.
    bool isEmpty() const override;
    /// Returns the translation, or a null string to make Qt try the next translator.
    QString translate(
        const char* context, const char* sourceText, const char* disambiguation = nullptr,
        int n = -1) const override;

private:
    MessageCatalogue m_catalogue;
};

} // namespace Orvane
