// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

/// Numbers of the errors that the host kit raises itself; those of the database pass through unchanged.
enum class HostError {
    UnknownScheme = 10001, ///< no layer scheme has that name
    DuplicateScheme = 10002, ///< a layer scheme of that name exists already
    LastScheme = 10003, ///< the only layer scheme cannot be deleted
    NoStartupDatabase = 10004, ///< the host named no file for the startup database
    StepOutdated = 10005, ///< a step cannot be undone or redone: somebody else changed what it did
    EditsPending = 10006, ///< an open editor holds edits that were not applied yet
    SchemeFileUnreadable = 10011, ///< a scheme file is missing, too large, damaged or of a newer program
    SchemeFileUnwritable = 10012, ///< a scheme file cannot be written
    SchemeTextDamaged = 10013, ///< a text is no scheme
    SchemeTextTooNew = 10014, ///< a scheme's text is of a newer program
    SchemeValueUnknown = 10015, ///< a saved value is no number
};

} // namespace Orvane
