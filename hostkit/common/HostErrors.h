// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

/// Numbers of the errors that the host kit raises itself; database errors are passed on unchanged.
enum class HostError {
    UnknownScheme = 10001, ///< no layer scheme has that name
    DuplicateScheme = 10002, ///< a layer scheme of that name already exists
    LastScheme = 10003, ///< the only layer scheme cannot be deleted
    NoStartupDatabase = 10004, ///< the host has not set a file for the startup database
    StepOutdated = 10005, ///< a step cannot be undone or redone: its result has been changed since
    EditsPending = 10006, ///< an open editor has edits that are not applied yet
    TablesTooNew = 10007, ///< a newer program has written tables that the host keeps in the layer store
    SchemeFileUnreadable = 10011, ///< a scheme file is missing, too large, damaged or from a newer program
    SchemeFileUnwritable = 10012, ///< a scheme file cannot be written
    SchemeTextDamaged = 10013, ///< a text is not a scheme
    SchemeTextTooNew = 10014, ///< a scheme's text is from a newer program
    SchemeValueUnknown = 10015, ///< a saved value is not a number
    UnknownLayer = 10021, ///< no layer has that ID
    UnknownGroup = 10022, ///< no group has that ID
    ListInvalid = 10023, ///< in a list of layers or groups an ID is 0 or occurs twice
};

} // namespace Orvane
