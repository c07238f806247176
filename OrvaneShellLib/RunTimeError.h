// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <exception>

namespace Orvane {

/// The numbers that a RunTimeError carries. Hosts may raise numbers of their own from 10000 on.
enum class ErrorNumber {
    Overflow = 6, ///< a number does not fit the requested type
    SubscriptOutOfRange = 9, ///< an index outside a fixed range
    FloatingPointFault = 11, ///< a floating-point computation has no finite result
    TypeMismatch = 13, ///< a value cannot be converted to the requested type
    NotInitialised = 91, ///< the component needed its host before Initialise was called
    DuplicateEditorID = 1234, ///< a style editor with that ID is already registered
    DatabaseFailure = 3001, ///< the layer database refused an operation
    DatabaseLocked = 3002, ///< another process kept the layer database locked beyond the allowed wait
    NotALayerDatabase = 3003, ///< the file is not a layer database, or is damaged
    DatabaseTooNew = 3004, ///< the layer database was written by a newer version
    DatabaseReadOnly = 3005, ///< the layer database cannot be written
    ConnectionLost = 3006, ///< the server does not answer; what was not stored can be tried again
    PluginFailure = 4001, ///< the component could not be loaded, or has a different contract version
};

/// The one exception type that crosses the boundary between host and component.
///
///     throw RunTimeError(ErrorNumber::TypeMismatch, QStringLiteral("Type mismatch"));
///
/// Copying never throws in practice: QString is shared. what() is the description in UTF-8.
class Q_DECL_EXPORT RunTimeError : public std::exception
{
public:
    /// description: for the user, translated if the code that raises it has a translator. source: what raised
    /// it, empty for "the component".
    RunTimeError(int number, const QString& description, const QString& source = {})
        : m_number(number), m_description(description), m_source(source), m_utf8(description.toUtf8())
    {
    }

    /// One of the common numbers.
    RunTimeError(ErrorNumber number, const QString& description, const QString& source = {})
        : RunTimeError(static_cast<int>(number), description, source)
    {
    }

    /// The error number: a value of ErrorNumber, or one of the host's own.
    int Number() const { return m_number; }
    /// The text for the user.
    const QString& Description() const { return m_description; }
    /// What raised it; empty for the component itself.
    const QString& Source() const { return m_source; }

    /// The description in UTF-8, as long as this object lives.
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    int m_number;
    QString m_description;
    QString m_source;
    QByteArray m_utf8;
};

} // namespace Orvane
