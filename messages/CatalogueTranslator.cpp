// SPDX-License-Identifier: MIT
#include "messages/CatalogueTranslator.h"

namespace Orvane {

CatalogueTranslator::CatalogueTranslator(MessageCatalogue catalogue, QObject* parent)
    : QTranslator(parent), m_catalogue(std::move(catalogue))
{
}

CatalogueTranslator::~CatalogueTranslator() = default;

bool CatalogueTranslator::isEmpty() const
{
    return m_catalogue.IsEmpty();
}

QString CatalogueTranslator::translate(
    const char* context, const char* sourceText, const char* /*disambiguation*/, int /*n*/) const
{
    const QString text = QString::fromUtf8(sourceText);
    const auto ownEntry = m_catalogue.Find(text, QString::fromUtf8(context));
    return ownEntry ? *ownEntry : m_catalogue.Find(text).value_or(QString());
}

} // namespace Orvane
