// SPDX-License-Identifier: MIT
#pragma once

#include "messages/MessageCatalogue.h"

#include <QTranslator>

namespace Orvane {

/// Lets a host's tr() use a Qt Linguist document directly:
///
///     CatalogueTranslator translator(MessageCatalogue::FromFile(path));
///     QCoreApplication::installTranslator(&translator);
///
/// Compiled catalogues are not used, because reading a damaged one can end the process. An entry of
/// the asking context comes first, then one of any context, so that the toolkit's own "Cancel" is translated
/// with the host's. Disambiguations and plural forms are not told apart: a host writes no "%n".
class CatalogueTranslator : public QTranslator
{
    Q_OBJECT

public:
    explicit CatalogueTranslator(MessageCatalogue catalogue, QObject* parent = nullptr);
    ~CatalogueTranslator() override;

    /// True when there is nothing to translate with; Qt then leaves the translator out.
    bool isEmpty() const override;
    /// The translation, or a null text, at which Qt asks the next translator.
    QString translate(
        const char* context, const char* sourceText, const char* disambiguation = nullptr,
        int n = -1) const override;

private:
    MessageCatalogue m_catalogue;
};

} // namespace Orvane
