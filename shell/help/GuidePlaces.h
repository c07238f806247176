// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class QObject;

namespace Orvane {

/// Which section of the guide tells about a place in the program. Sections are named by their headings, as in
/// a web page's address: "3-style-the-layers" for "3. Style the layers".
namespace GuidePlaces {

/// The section about a widget, or about the nearest of its parents that one is about; on the map that of the
/// current tool. Empty for nullptr, and for a place that no section is about: then the guide's beginning is
/// right.
QString SectionAt(const QObject* place);

/// All sections that SectionAt may return.
QStringList Sections();

/// The name of the section with that heading.
QString SectionOf(const QString& heading);

} // namespace GuidePlaces

} // namespace Orvane
