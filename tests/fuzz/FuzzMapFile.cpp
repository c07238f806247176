// SPDX-License-Identifier: MIT
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/LayerColumns.h>
#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QFile>
#include <QTemporaryDir>

namespace Orvane::Testing {

namespace {

constexpr int MostRows = 1000; // pages that refer to each other can hold very many

void ReadRows(ILayerStore& store, const QString& query)
{
    const auto rows = store.OpenRecordset(query);
    for (int row = 0; row < MostRows && !rows->AtEOF(); ++row, rows->MoveNext()) {
        for (const LayerColumn& column : LayerColumns)
            rows->Field(column.name);
    }
}

void SeekRow(ILayerStore& store, const QString& table, const char* index, const char* column)
{
    const auto row = store.OpenRecordset(table);
    row->Index(index);
    row->Seek("=", 1);
    if (!row->NoMatch())
        row->Field(column);
}

void ReadLists(const QString& path)
{
    const auto store = LayerStores::Open(path, OpenMode::ReadOnly);
    Require(store->IsReadOnly(), "a map that is opened for reading is not writable");
    ReadRows(*store, LayerQueries::LayerList());
    ReadRows(*store, LayerQueries::Tree(std::nullopt));
    SeekRow(*store, QStringLiteral("Layers"), "LayerIDIDX", "Name");
    SeekRow(*store, QStringLiteral("LayerGroups"), "IDIDX", "Name");
}

QByteArray ContentOf(QFile& file)
{
    Require(file.open(QIODevice::ReadOnly), "the file is still there");
    const QByteArray content = file.readAll();
    file.close();
    return content;
}

} // namespace

int FuzzMapFile(const uint8_t* data, size_t size)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("map.orvane")));
    const QByteArray content = BytesIn(data, size);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    Require(written, "the folder for temporary files has room");
    file.close();
    try {
        ReadLists(file.fileName());
    } catch (const RunTimeError&) { // a damaged file may be refused at any point
    }
    Require(ContentOf(file) == content, "a map that is opened for reading stays as it was");
    return 0;
}

} // namespace Orvane::Testing
