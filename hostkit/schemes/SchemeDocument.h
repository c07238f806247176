// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/Value.h>
#include <orvane/hostkit/schemes/LayerMatch.h>
#include <orvane/hostkit/schemes/SchemeColumns.h>
#include <orvane/hostkit/schemes/SchemeDetails.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <vector>

class QIODevice;

namespace Orvane {

/// One layer scheme outside a map: its name, and for each layer what identifies it and its values for all
/// edited columns. As JSON text:
///
///     {"format": "orvane-scheme", "version": 1, "name": "Night", "layers": [
///     {"code": 7, "name": "Roads", "Visible": 1, "Selectable": 1, ... "OverrideMode": 0}
///     ]}
///
/// A partial scheme is of version 2, says what it holds before the layers, and has values for nothing else:
///
///     {"format": "orvane-scheme", "version": 2, "name": "Locks", "holds": ["flags"], "layers": [
///
/// The key "saved" tells when the values were taken from the layers, such as "2026-05-01T12:30:00Z".
///
/// Values are as in the columns: colours as BGR numbers, scales as denominators, null for an unknown value.
/// Unknown keys are ignored, so later programs may add some. If a key is missing, because an earlier program
/// wrote the text, the document has no value for that column.
struct SchemeDocument : SchemeHead {
    Q_DECLARE_TR_FUNCTIONS(SchemeDocument)

public:
    /// The version that is written for a whole scheme.
    static constexpr int Version = 1;
    /// The version that is written for a partial scheme, and the newest one that can be read.
    static constexpr int PartialVersion = 2;

    /// Numbers and nulls in the order of SchemeColumns; Empty for a missing value.
    using Values = std::array<Value, SchemeColumns::Count>;

    /// The values of one layer.
    struct Layer {
        LayerIdentity identity; ///< its ID is the position in the list
        Values values; ///< one for each of SchemeColumns
    };

    std::vector<Layer> layers; ///< each identity once

    /// Writes the JSON text of a scheme piece by piece: the beginning with its name, each layer, the end.
    class Writer
    {
    public:
        /// text: open for writing; must outlive the writer.
        explicit Writer(QIODevice& text) : m_text(text) { }

        /// Writes what comes before the first layer; call it once, first.
        void Begin(const SchemeHead& scheme);
        /// Writes the values of what the scheme holds. Raises as ToJson does.
        void Add(const Layer& layer);
        void End();

    private:
        QIODevice& m_text;
        SchemeParts m_holds = WholeScheme;
        const char* m_separator = "\n";
    };

    /// Reads a text that has one line per layer, as ToJson writes it, layer by layer. Raises as FromJson
    /// does, and SchemeTextDamaged for a line of more than LongestLine.
    class Reader
    {
    public:
        /// text: not owned; read from where it stands.
        explicit Reader(QIODevice& text) : m_text(text) { }

        /// Reads the beginning. Returns false for any other text, of which the beginning has then been read.
        bool Begin();
        /// What the beginning says.
        const SchemeHead& Head() const { return m_head; }
        /// Reads the next layer; false when there was none left.
        bool Next(Layer& layer);
        /// The part of the text that was read, from 0 to 1.
        double Done() const;

    private:
        QIODevice& m_text;
        SchemeHead m_head;
        int m_position = 0; // of the next layer
    };

    /// In UTF-8, one line per layer. Raises HostError::SchemeValueUnknown for a value that is not a number.
    QByteArray ToJson() const;

    /// Reads a complete JSON text. Raises HostError::SchemeTextDamaged, which says what is wrong, and
    /// HostError::SchemeTextTooNew.
    static SchemeDocument FromJson(const QByteArray& text);

    /// Reads a text that has one line per layer, as ToJson writes it, without holding all of it in memory.
    /// Returns nothing for any other text, of which the beginning has then been read. Raises as FromJson
    /// does, and SchemeTextDamaged for a line of more than LongestLine.
    ///
    /// told: called after each line with the part that was read, from 0 to 1; what it raises is passed on.
    static std::optional<SchemeDocument>
    FromLines(QIODevice& text, const std::function<void(double done)>& told = {});
    static constexpr qint64 LongestLine = qint64(1024) * 1024; // bytes
};

} // namespace Orvane
