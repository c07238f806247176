// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

class GDALDataset;

namespace Orvane {

/// Whether a file has the name of a text table (.csv, .tsv, .psv, .txt), compressed or not.
bool IsTextTable(const QString& name);

/// Opens a text table. A column gets numbers where its first values are all numbers, and reading them as such
/// loses nothing: post codes like 01234, and numbers too long for a double, stay text. name: for GDAL.
/// nullptr if no driver opens it. Call PrepareGdal before.
std::unique_ptr<GDALDataset> OpenTextTable(const QString& name);

} // namespace Orvane
