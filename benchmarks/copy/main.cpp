// SPDX-License-Identifier: MIT
// How long it takes to copy a map of many layers to a server and back, as a ratio against COPY of the same
// rows with bare libpq, and how much memory that needs.
//
//     orvane_copy_benchmark [LAYERS]
//
// It starts a server of its own, which ends with it.
#include "benchmarks/Machine.h"
#include "benchmarks/layers/BenchmarkMap.h"
#include "store/ILayerStore.h"
#include "store/copying/StoreCopy.h"
#include "store/opening/LayerStores.h"
#include "support/PrivateServer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <libpq-fe.h>
#include <string>
#include <vector>

namespace {

using namespace Orvane;

constexpr int FewLayers = 1000;
constexpr int ManyLayers = 100000;

double Milliseconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

/// COPY as libpq has it.
class BareCopy
{
public:
    explicit BareCopy(const QByteArray& connection) : m_link(PQconnectdb(connection.constData()))
    {
        if (PQstatus(m_link) != CONNECTION_OK)
            qFatal("%s", PQerrorMessage(m_link));
    }
    ~BareCopy() { PQfinish(m_link); }
    BareCopy(const BareCopy&) = delete;
    BareCopy& operator=(const BareCopy&) = delete;

    void Run(const char* sql) { PQclear(PQexec(m_link, sql)); }
    /// What a map needs in the server, with its indexes.
    double Kilobytes()
    {
        PGresult* result = PQexec(
            m_link,
            "SELECT sum(pg_total_relation_size(oid)) / 1024 FROM pg_class"
            " WHERE relkind = 'r' AND relnamespace = '\"Measured\"'::regnamespace");
        const double kilobytes = std::atof(PQgetvalue(result, 0, 0));
        PQclear(result);
        return kilobytes;
    }
    std::vector<std::string> Read()
    {
        std::vector<std::string> rows;
        Run("COPY \"Measured\".layers TO STDOUT");
        char* row = nullptr;
        int size = 0;
        while ((size = PQgetCopyData(m_link, &row, 0)) > 0) {
            rows.emplace_back(row, size_t(size));
            PQfreemem(row);
        }
        PQclear(PQgetResult(m_link));
        return rows;
    }
    void Write(const std::vector<std::string>& rows)
    {
        Run("CREATE TEMP TABLE bare (LIKE \"Measured\".layers INCLUDING ALL)");
        Run("COPY bare FROM STDIN");
        for (const std::string& row : rows)
            PQputCopyData(m_link, row.data(), int(row.size()));
        PQputCopyEnd(m_link, nullptr);
        PQclear(PQgetResult(m_link));
    }

private:
    PGconn* m_link;
};

void CopyToServer(const QString& file, const QString& place)
{
    const auto from = LayerStores::Open(file, OpenMode::ReadOnly);
    LayerStores::Make(
        place, IfExists::Replace, [&](std::unique_ptr<ILayerStore> to) { CopyStore(*from, *to); });
}

void CopyToFile(const QString& place, const QString& file)
{
    LayerStores::Open(place, OpenMode::ReadOnly)->CopyToFile(file);
}

void Measure(int layers, const QString& place)
{
    const QTemporaryDir folder;
    const QString map = Benchmarks::BenchmarkMap(layers);
    Benchmarks::ResetPeakMemory();
    const double there = Milliseconds([&] { CopyToServer(map, place); });
    const double back = Milliseconds([&] { CopyToFile(place, folder.filePath(QStringLiteral("back"))); });
    std::printf(
        "%d layers: to the server %.0f ms, to a file %.0f ms, memory %.1f MB\n", layers, there, back,
        Benchmarks::PeakMemoryInMegabytes());
}

void MeasureBare(const QByteArray& connection)
{
    BareCopy bare(connection);
    std::vector<std::string> rows;
    const double out = Milliseconds([&] { rows = bare.Read(); });
    const double in = Milliseconds([&] { bare.Write(rows); });
    std::printf("1,000 layers need %.0f kB in the server\n", 1000 * bare.Kilobytes() / double(rows.size()));
    std::printf("bare COPY of %zu layers: into a server %.0f ms, out of it %.0f ms\n", rows.size(), in, out);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const Testing::PrivateServer server;
    const QString place = server.Place(QStringLiteral("Measured"));
    const int many = argc > 1 ? std::max(FewLayers, std::atoi(argv[1])) : ManyLayers;
    for (const int layers : {FewLayers, many})
        Measure(layers, place);
    MeasureBare(server.Connection());
    return 0;
}
