// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

namespace Orvane::Testing {

/// Each function reads the bytes as content that comes from outside, and ends the program when a promise of
/// the reader does not hold. What a reader may refuse, it may. Returns 0.

int FuzzArrayText(const uint8_t* data, size_t size); ///< texts that a server gets in one parameter, by lines
int FuzzCopiedSettings(const uint8_t* data, size_t size); ///< settings on the clipboard
int FuzzGeometryBlob(const uint8_t* data, size_t size); ///< a geometry in a GeoPackage
int FuzzMapFile(const uint8_t* data, size_t size); ///< a map file, opened for reading
int FuzzMessages(const uint8_t* data, size_t size); ///< a message file
int FuzzNodeKey(const uint8_t* data, size_t size); ///< the key of a node and, after a tab, of its image
int FuzzRowText(const uint8_t* data, size_t size); ///< a row of a server in one text
int FuzzScheme(const uint8_t* data, size_t size); ///< a scheme file
int FuzzServerPlace(const uint8_t* data, size_t size); ///< the place of a map on a server
int FuzzShownOnly(const uint8_t* data, size_t size); ///< the note of "Show Only These"
int FuzzStatementText(const uint8_t* data, size_t size); ///< a host's statement for a server
int FuzzStyleString(const uint8_t* data, size_t size); ///< an item of an owner-drawn list
int FuzzValues(const uint8_t* data, size_t size); ///< a text where a number may stand
int FuzzViewState(const uint8_t* data, size_t size); ///< the setting that tells how a dialog was left

} // namespace Orvane::Testing
