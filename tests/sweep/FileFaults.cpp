// SPDX-License-Identifier: MIT
#include "sweep/FileFaults.h"

#include "store/failing_files/FailingFiles.h"

#include <array>

namespace Orvane::Testing {

namespace {

struct FileFailure {
    const char* name;
    FailingFiles::Failure failure;
};

constexpr std::array FileFailures = {
    FileFailure{"OneCallFails", {.calls = FailingFiles::AllCalls}},
    FileFailure{"AllCallsFailFromThenOn", {.calls = FailingFiles::AllCalls, .lasts = true}},
    FileFailure{"AWriteIsCutShort", {.calls = FailingFiles::Write, .writesHalf = true}},
    FileFailure{
        "TheDiskIsFullForAMoment",
        {.calls = FailingFiles::Growing, .reason = FailingFiles::Reason::DiskFull}},
    FileFailure{
        "TheDiskStaysFull",
        {.calls = FailingFiles::Growing,
         .reason = FailingFiles::Reason::DiskFull,
         .lasts = true,
         .writesHalf = true}},
};

class FileFault final : public IFault
{
public:
    FileFault(FailingFiles& files, const FileFailure& kind) : m_files(files), m_kind(kind) { }

    std::string Name() const override { return m_kind.name; }
    void Arm(int number) override
    {
        FailingFiles::Failure failure = m_kind.failure;
        failure.number = number;
        m_files.Fail(failure);
    }
    void Disarm() override { m_files.Heal(); }
    bool HasFailed() const override { return m_files.HasFailed(); }
    std::string FirstFailure() const override { return m_files.FirstFailure(); }

private:
    FailingFiles& m_files;
    const FileFailure& m_kind;
};

} // namespace

std::vector<std::unique_ptr<IFault>> MakeFileFaults(FailingFiles& files)
{
    std::vector<std::unique_ptr<IFault>> faults;
    faults.reserve(FileFailures.size());
    for (const FileFailure& kind : FileFailures)
        faults.push_back(std::make_unique<FileFault>(files, kind));
    return faults;
}

} // namespace Orvane::Testing
