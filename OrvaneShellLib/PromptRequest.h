// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// What the user may enter.
enum class EntryKind {
    Text,
    Integer, ///< a whole number between the minimum and the maximum
};

/// What IStyleEditorClient::PromptText asks for.
struct PromptRequest {
    QString title; ///< translated
    QString defaultText; ///< shown selected when the prompt opens
    EntryKind kind = EntryKind::Text; ///< what may be entered
    double minimum = 0; ///< of an integer; not used for a text
    double maximum = 0; ///< of an integer; not used for a text
    int width = 0; ///< of the entry field, in average characters; 0 leaves it to the host
};

/// The user's answer to a PromptRequest.
struct PromptAnswer {
    bool accepted = false; ///< false when the prompt was cancelled; text is then empty
    QString text; ///< as entered, untrimmed
};

} // namespace Orvane
