// SPDX-License-Identifier: MIT
#include "ovctrls/ListenerErrors.h"

#include <QtDebug>

namespace Orvane {

namespace {

void WarnOf(const std::exception_ptr& error)
{
    try {
        std::rethrow_exception(error);
    } catch (const std::exception& known) {
        qWarning("A listener of a control raised: %s", known.what());
    } catch (...) {
        qWarning("A listener of a control raised an exception of unknown type.");
    }
}

} // namespace

void ListenerErrors::SetReport(Report report)
{
    m_report = report ? std::make_shared<const Report>(std::move(report)) : nullptr;
}

void ListenerErrors::Tell(const Report* report, const std::exception_ptr& error) noexcept
{
    if (report)
        (*report)(error);
    else
        WarnOf(error);
}

} // namespace Orvane
