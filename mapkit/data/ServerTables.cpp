// SPDX-License-Identifier: MIT
#include "mapkit/data/ServerTables.h"

#include "mapkit/data/SourceReader.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>

namespace Orvane {

const ServerTables& TablesOf(const LayerSource& source)
{
    if (source.server)
        return *source.server;
    throw RunTimeError(
        SourceUnreadable,
        QCoreApplication::translate(
            "DataSource", "\"%1\" is a table on a server. It can only be read by a map on that server.")
            .arg(source.ogrLayer));
}

QString WhyNoFile(const LayerSource& source)
{
    if (!IsServerTable(source.path))
        return {};
    return QCoreApplication::translate(
               "DataSource", "\"%1\" is a table on a server. This works only with data in files.")
        .arg(source.ogrLayer);
}

} // namespace Orvane
