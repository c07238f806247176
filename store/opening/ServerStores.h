// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"

#include <QString>

#include <memory>

namespace Orvane {

class ILayerStore;

/// What LayerStores does for places on servers. A program that was built without PostgreSQL has
/// NoServerStores.cpp, which raises DatabaseFailure for each of them that may raise.
namespace ServerStores {

std::unique_ptr<ILayerStore> Create(const QString& place, const StoreOptions& options);
void Make(const QString& place, IfExists ifExists, const StoreFiller& fill, const StoreOptions& options);
void Remove(const QString& place);
std::unique_ptr<ILayerStore> Open(const QString& place, OpenMode mode, const StoreOptions& options);
bool IsInUse(const QString& place);
bool Exists(const QString& place, const StoreOptions& options);

} // namespace ServerStores

} // namespace Orvane
