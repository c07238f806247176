// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "store/ILayerStore.h"
#include "sweep/SweepFolder.h"

#include <memory>

namespace Orvane::Testing {

/// A host whose user answers every prompt with a code, and deletes what is asked about.
class AnsweringClient final : public StandardClient
{
public:
    using StandardClient::StandardClient;

    /// The answer to each prompt.
    static constexpr auto Code = "77";

protected:
    PromptAnswer IStyleEditorClient_PromptText(const PromptRequest&) override
    {
        return {true, QLatin1String(Code)};
    }
    bool ConfirmDeletion(const LayerDeletion&) override { return true; }
};

/// A host kit over the map of the folder.
struct SweepHost {
    explicit SweepHost(const SweepFolder& folder);

    const std::unique_ptr<ILayerStore> store;
    StandardShellServices services;
    AnsweringClient client;
};

} // namespace Orvane::Testing
