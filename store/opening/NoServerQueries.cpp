// SPDX-License-Identifier: MIT
#include "store/StorePlace.h"
#include "store/StoreTexts.h"
#include "store/opening/ServerQueries.h"
#include "store/shared/StoreErrors.h"

namespace Orvane {

class ServerQueries::Link
{
};

ServerQueries::ServerQueries(const QString& server, const ServerMaps::Access&)
{
    throw StoreErrors(StoreErrors::Named{StorePlace::TitleOf(server)}).Failure(StoreTexts::NoServers);
}

ServerQueries::~ServerQueries() = default;

void ServerQueries::Read(const QByteArray&, const QByteArrayList&, const std::function<void(const Row&)>&)
{
}

QByteArray ServerQueries::Quoted(const QString& name)
{
    return name.toUtf8();
}

} // namespace Orvane
