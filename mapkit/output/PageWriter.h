// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

class QPrinter;

namespace Orvane {

class MapPage;
class Progress;

/// The number of the RunTimeError for a page that cannot be written.
inline constexpr int OutputFailed = 10201;

/// The resolutions that are offered, in dots per inch.
inline constexpr int LeastResolution = 30;
inline constexpr int MostResolution = 2400;

/// The file formats for a page.
enum class PageFormat { Pdf, Svg, Png };

/// The format for the file name's extension, compared case-insensitively; nothing for any other extension.
std::optional<PageFormat> FormatOfFile(const QString& path);

/// Writes the page to a file, on any thread. An existing file of that name is replaced after everything is
/// written to the disk, and stays as it was if anything fails. Raises OutputFailed for an unknown extension,
/// a file that cannot be written, on a full disk too, and a picture that is too large; raises Cancelled.
void WritePage(const MapPage& page, const QString& path, Progress& progress);

/// Prints the page. The page's size should be that of the printer's paintable area, and its margin 0. Raises
/// OutputFailed if the printer reports an error; raises Cancelled.
void PrintPage(const MapPage& page, QPrinter& printer, Progress& progress);

} // namespace Orvane
