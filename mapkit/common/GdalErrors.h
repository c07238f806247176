// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cpl_error.h>

namespace Orvane {

/// Keeps GDAL's messages of this thread off the terminal during its lifetime, and stores the first failure.
class GdalErrors
{
public:
    GdalErrors() { CPLPushErrorHandlerEx(&GdalErrors::Collect, this); }
    ~GdalErrors() { CPLPopErrorHandler(); }
    GdalErrors(const GdalErrors&) = delete;
    GdalErrors& operator=(const GdalErrors&) = delete;

    /// GDAL's message for the first failure; empty if nothing failed. Warnings do not count.
    const QString& First() const { return m_first; }

private:
    static void CPL_STDCALL Collect(CPLErr level, CPLErrorNum, const char* message)
    {
        auto* self = static_cast<GdalErrors*>(CPLGetErrorHandlerUserData());
        if (level >= CE_Failure && self->m_first.isEmpty())
            self->m_first = QString::fromUtf8(message);
    }

    QString m_first;
};

} // namespace Orvane
