// SPDX-License-Identifier: MIT
#include "store/ILayerStore.h"
#include "store/StorePlace.h"
#include "store/StoreTexts.h"
#include "store/opening/ServerStores.h"
#include "store/shared/StoreErrors.h"

namespace Orvane {

namespace {

[[noreturn]] void Refuse(const QString& place)
{
    throw StoreErrors(StoreErrors::Named{StorePlace::NameOf(place)}).Failure(StoreTexts::NoServers);
}

} // namespace

std::unique_ptr<ILayerStore> ServerStores::Create(const QString& place, const StoreOptions&)
{
    Refuse(place);
}

void ServerStores::Make(const QString& place, IfExists, const StoreFiller&, const StoreOptions&)
{
    Refuse(place);
}

void ServerStores::Remove(const QString&)
{
}

std::unique_ptr<ILayerStore> ServerStores::Open(const QString& place, OpenMode, const StoreOptions&)
{
    Refuse(place);
}

bool ServerStores::IsInUse(const QString&)
{
    return false;
}

bool ServerStores::Exists(const QString& place, const StoreOptions&)
{
    Refuse(place);
}

} // namespace Orvane
