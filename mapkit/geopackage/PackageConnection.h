// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <exception>
#include <memory>
#include <span>

struct sqlite3;
struct sqlite3_stmt;

namespace Orvane {

/// Raised when a GeoPackage, or something in it, is not what its readers know for certain. It is no error:
/// GDAL is then asked.
class PackageDoubt : public std::exception
{
public:
    const char* what() const noexcept override { return "not known for certain"; }
};

/// A GeoPackage, opened as an SQLite database for reading only. The file may come from an unknown source:
/// triggers in it do not run, views in it cannot be read, its schema may call only harmless functions, and
/// the size of statements is limited. Statements end when a ReadingBound of the thread is over. No extra file
/// is made.
///
/// For the thread that made it.
class PackageConnection
{
public:
    /// Raises PackageDoubt if it cannot be opened. Call PrepareGdal before: then a pipe is not waited for.
    explicit PackageConnection(const QString& path);
    ~PackageConnection();
    PackageConnection(const PackageConnection&) = delete;
    PackageConnection& operator=(const PackageConnection&) = delete;

    sqlite3* Handle() const { return m_handle.get(); }

private:
    struct Closer {
        void operator()(sqlite3* handle) const;
    };

    std::unique_ptr<sqlite3, Closer> m_handle;
};

/// A statement that reads. Every member raises PackageDoubt when SQLite reports an error, or a value is of
/// another kind than is asked for. The connection must outlive it.
///
///     PackageStatement rows(connection, "SELECT table_name FROM gpkg_contents");
///     while (rows.Step())
///         names << rows.Text(0);
class PackageStatement
{
public:
    PackageStatement(const PackageConnection& connection, const QByteArray& sql);

    /// Goes to the next row; false past the last one.
    bool Step();
    bool IsNull(int column) const;
    qint64 Whole(int column) const;
    QString Text(int column) const;
    /// A blob. Valid until the next Step.
    std::span<const uint8_t> Bytes(int column) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };

    void RequireKind(int column, int kind) const;

    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

/// A name as it stands in a statement: quoted.
QByteArray NameInPackage(const QString& name);

} // namespace Orvane
