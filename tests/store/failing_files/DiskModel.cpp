// SPDX-License-Identifier: MIT
#include "store/failing_files/DiskModel.h"

#include <algorithm>
#include <utility>

namespace Orvane::Testing {

namespace {

constexpr qint64 SectorSize = 512; // bytes

bool IsKept(Loss loss, std::mt19937& random)
{
    if (loss == Loss::Everything || loss == Loss::Nothing)
        return loss == Loss::Nothing;
    return random() % 2 == 0;
}

void Resize(QByteArray& content, qint64 size)
{
    const qsizetype old = content.size();
    content.resize(qsizetype(size));
    if (size > old)
        std::fill(content.begin() + old, content.end(), '\0');
}

void Put(QByteArray& content, qint64 offset, const QByteArray& bytes)
{
    Resize(content, std::max<qint64>(content.size(), offset + bytes.size()));
    std::copy(bytes.begin(), bytes.end(), content.begin() + qsizetype(offset));
}

} // namespace

void DiskModel::AddOld(const std::string& name, const QByteArray& content)
{
    const auto file = std::make_shared<File>(File{content, {}});
    m_now[name] = file;
    m_synced[name] = file;
}

void DiskModel::Create(const std::string& name)
{
    Name({{name, std::make_shared<File>()}});
}

void DiskModel::Write(const std::string& name, qint64 offset, const QByteArray& bytes)
{
    m_now.at(name)->changes.push_back({offset, bytes, false});
}

void DiskModel::Truncate(const std::string& name, qint64 size)
{
    m_now.at(name)->changes.push_back({size, {}, true});
}

void DiskModel::Sync(const std::string& name)
{
    File& file = *m_now.at(name);
    for (const Change& change : file.changes)
        Apply(file.synced, change);
    file.changes.clear();
}

void DiskModel::Delete(const std::string& name)
{
    Name({{name, nullptr}});
}

void DiskModel::Rename(const std::string& from, const std::string& to)
{
    Name({{to, m_now.at(from)}, {from, nullptr}});
}

void DiskModel::SyncFolder()
{
    m_synced = m_now;
    m_namings.clear();
}

void DiskModel::Name(const Naming& naming)
{
    m_namings.push_back(naming);
    for (const auto& [name, file] : naming) {
        if (file)
            m_now[name] = file;
        else
            m_now.erase(name);
    }
}

void DiskModel::Apply(QByteArray& content, const Change& change)
{
    if (change.truncates)
        Resize(content, change.offset);
    else
        Put(content, change.offset, change.bytes);
}

QByteArray DiskModel::Survivor(const File& file, Loss loss, std::mt19937& random)
{
    QByteArray content = file.synced;
    for (const Change& change : file.changes) {
        if (loss != Loss::TornWrites || change.truncates) {
            if (IsKept(loss, random))
                Apply(content, change);
            continue;
        }
        qint64 next = 0;
        for (qint64 done = 0; done < change.bytes.size(); done = next) {
            const qint64 inSector = (change.offset + done) % SectorSize;
            next = std::min<qint64>(done + SectorSize - inSector, change.bytes.size());
            if (IsKept(loss, random))
                Put(content, change.offset + done, change.bytes.mid(qsizetype(done), qsizetype(next - done)));
        }
    }
    return content;
}

std::map<std::string, QByteArray> DiskModel::AfterPowerCut(Loss loss, unsigned seed)
{
    std::mt19937 random(seed);
    m_now = m_synced;
    for (const Naming& naming : std::exchange(m_namings, {})) {
        if (IsKept(loss, random))
            Name(naming);
    }
    std::map<std::string, QByteArray> files;
    for (const auto& [name, file] : m_now)
        files[name] = Survivor(*file, loss, random);
    for (const auto& [name, content] : files)
        AddOld(name, content);
    SyncFolder();
    return files;
}

} // namespace Orvane::Testing
