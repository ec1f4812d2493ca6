#include "platform/system/windows/setup/ProductFolder.h"

#include "platform/system/windows/OwnedHandle.h"
#include "platform/system/windows/setup/ProductInstances.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// A front end that is asked to end has this long; it needs less, unless it hangs.
constexpr std::chrono::seconds Grace(5);
constexpr std::chrono::seconds Limit(20);
constexpr DWORD LookMs = 100;

/// Access that nobody is given alone while a program holds the file open; of one that is only run or loaded
/// no handle is left.
constexpr DWORD UnlessHeld = GENERIC_READ;
/// Access that nobody is given while a program runs the file or has it loaded either.
constexpr DWORD UnlessUsed = GENERIC_READ | GENERIC_WRITE | DELETE;

/// Tries until it succeeds, for as long as the limit. The attempt is told how long it has been tried.
template <typename Attempt>
bool IsDoneInTime(Attempt attempt) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    while (!attempt(Clock::now() - start)) {
        if (Clock::now() - start > Limit)
            return false;
        Sleep(LookMs);
    }
    return true;
}

/// A file that somebody has marked as read-only could be neither opened for writing nor removed.
void MakeWritable(const fs::path& folder) {
    std::error_code ignored;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, ignored))
        fs::permissions(entry, fs::perms::owner_write, fs::perm_options::add, ignored);
}

/// What the folder holds, with `last` at the end.
std::vector<fs::path> EntriesOf(const fs::path& folder, const fs::path& last) {
    std::vector<fs::path> entries;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        entries.push_back(entry.path());
    std::stable_partition(entries.begin(), entries.end(),
                          [&last](const fs::path& entry) { return entry.filename() != last; });
    return entries;
}

} // namespace

ProductFolder::ProductFolder(fs::path folder)
    : m_folder(std::move(folder)),
      m_program(m_folder / L"velmora-ryx.exe"),
      m_aside(m_folder / L"velmora-ryx.exe.ended"),
      m_old(fs::path(m_folder) += L".old") {}

bool ProductFolder::Free() {
    if (!fs::exists(m_folder))
        return true;
    MakeWritable(m_folder);
    MakeWritable(m_old);
    Recover();
    // Who holds a file may keep the product from being replaced, but must not get a lock away by it.
    if (IsDoneInTime([this](auto) { return AreFilesFree(UnlessHeld); }) &&
        IsDoneInTime([this](auto waited) { return EndInstances(waited > Grace ? &Terminate : &AskToEnd); }))
        return true;
    std::cout << "in use: " << m_busy.u8string() << '\n';
    Restore();
    return false;
}

void ProductFolder::Recover() const {
    if (!fs::exists(m_program) && fs::exists(m_old)) {
        for (const fs::path& entry : EntriesOf(m_old, m_aside.filename())) {
            const fs::path back = m_folder / entry.filename();
            fs::remove_all(back); // of the new version, which was never whole
            fs::rename(entry, back);
        }
    }
    fs::remove_all(m_old);
}

bool ProductFolder::EndInstances(void (*end)(unsigned long)) {
    const bool isAside = PutAside();
    const std::vector<unsigned long> instances = InstancesIn(m_folder);
    if (isAside && instances.empty() && AreFilesFree(UnlessUsed))
        return true;
    std::for_each(instances.begin(), instances.end(), end);
    return false;
}

bool ProductFolder::PutAside() const {
    std::error_code error;
    if (fs::exists(m_program, error))
        fs::rename(m_program, m_aside, error);
    return !error;
}

void ProductFolder::Restore() {
    std::error_code error; // nothing was put aside
    if (!fs::exists(m_program, error))
        fs::rename(m_aside, m_program, error);
}

bool ProductFolder::AreFilesFree(unsigned long access) {
    try {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(m_folder)) {
            m_busy = entry.path();
            if (!entry.is_regular_file() || m_busy.filename() == Uninstaller)
                continue;
            const FileHandle file(CreateFileW(m_busy.c_str(), access, 0, nullptr, OPEN_EXISTING,
                                              FILE_ATTRIBUTE_NORMAL, nullptr));
            if (file.get() == INVALID_HANDLE_VALUE)
                return false;
        }
        return true;
    } catch (const fs::filesystem_error&) { // somebody is just changing the folder
        return false;
    }
}

bool ProductFolder::Replace(const fs::path& with) {
    std::vector<std::pair<fs::path, fs::path>> moves;
    const auto move = [&](const fs::path& from, const fs::path& to) {
        fs::create_directory(to);
        for (const fs::path& entry : EntriesOf(from, m_program.filename())) {
            fs::rename(entry, to / entry.filename());
            moves.emplace_back(entry, to / entry.filename());
        }
    };
    std::error_code ignored; // what is left of the old ones hinders nobody, and goes the next time
    try {
        if (fs::exists(m_folder))
            move(m_folder, m_old);
        move(with, m_folder);
        fs::remove(with, ignored);
    } catch (const fs::filesystem_error& error) {
        std::cout << error.what() << '\n';
        std::for_each(moves.rbegin(), moves.rend(),
                      [&ignored](const auto& done) { fs::rename(done.second, done.first, ignored); });
        fs::remove(m_old, ignored);
        if (!fs::exists(m_old, ignored)) // all is back; otherwise the next run begins with the rest
            Restore();
        return false;
    }
    fs::remove_all(m_old, ignored);
    return true;
}
