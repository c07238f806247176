// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/schemes/SchemeParts.h"

#include <QColor>
#include <QCoreApplication>
#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace Orvane {

class IStyleEditorClient;
struct RendererStyle;

/// What the columns of schemes and their values are called, in the words of the layer control. column: a
/// position in SchemeColumns::All.
class SchemeValueTexts
{
    Q_DECLARE_TR_FUNCTIONS(SchemeValueTexts)

public:
    /// client: names the renderer styles; used here only.
    explicit SchemeValueTexts(const IStyleEditorClient& client);
    ~SchemeValueTexts();
    Q_DISABLE_COPY_MOVE(SchemeValueTexts)

    /// "Line colour"
    static QString Property(std::size_t column);
    /// "Flags"
    static QString Part(SchemePart part);
    /// "Flags, Scales", or "All properties"
    static QString Parts(SchemeParts parts);
    /// "Visible, Selectable, Locked ...": all properties of the class.
    static QString PropertiesOf(SchemePart part);
    /// "yes", "#FF0000", "1:5,000"; value: nothing for one that is not known.
    QString Text(std::size_t column, const std::optional<double>& value) const;
    /// The colour that the value is; nothing if it is no colour, or a transparent one.
    static std::optional<QColor> Colour(std::size_t column, const std::optional<double>& value);

private:
    QString RendererStyleName(int number) const;

    std::vector<RendererStyle> m_rendererStyles;
};

} // namespace Orvane
