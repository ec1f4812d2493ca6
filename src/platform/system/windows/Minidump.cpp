#include "platform/system/windows/Minidump.h"

#include "platform/system/windows/Handles.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <psapi.h>
#include <string>
#include <tlhelp32.h>
#include <vector>

// The system's own MiniDumpWriteDump can leave the values of the stacks out, too, but loads symbols on some
// systems, for which a crashed process has no time.
namespace {

constexpr std::size_t MostOfStack = 256 * 1024;

using Words = std::vector<ULONG64>;

struct Range {
    ULONG64 begin;
    ULONG64 end;
    bool Holds(ULONG64 address) const { return address >= begin && address < end; }
};

template <class Value>
bool Read(HANDLE process, ULONG64 address, Value& value) {
    return ReadProcessMemory(process, reinterpret_cast<const void*>(address), &value, sizeof value,
                             nullptr) != 0;
}

class Minidump {
public:
    Minidump(HANDLE process, const MINIDUMP_EXCEPTION_INFORMATION& crash)
        : m_process(process), m_crash(crash), m_bytes(sizeof(MINIDUMP_HEADER) + sizeof m_streams, '\0') {}

    QByteArray Make() {
        AddSystem();
        AddModules();
        AddThreads();
        AddException();
        const auto count = static_cast<ULONG32>(m_streams.size());
        MINIDUMP_HEADER header{};
        header.Signature = 0x504D444D; // "MDMP"
        header.Version = MINIDUMP_VERSION;
        header.NumberOfStreams = count;
        header.StreamDirectoryRva = sizeof header;
        header.Flags = MiniDumpFilterMemory;
        std::copy_n(reinterpret_cast<const char*>(&header), sizeof header, m_bytes.data());
        std::copy_n(reinterpret_cast<const char*>(m_streams.data()), sizeof m_streams,
                    m_bytes.data() + sizeof header);
        return m_bytes;
    }

private:
    MINIDUMP_LOCATION_DESCRIPTOR Append(const void* data, std::size_t size) {
        const auto place = static_cast<RVA>(m_bytes.size());
        m_bytes.append(static_cast<const char*>(data), static_cast<int>(size));
        return {static_cast<ULONG32>(size), place};
    }

    /// A stream of one structure.
    template <class Structure>
    void AddStream(std::size_t index, ULONG32 type, const Structure& structure) {
        m_streams[index] = {type, Append(&structure, sizeof structure)};
    }

    /// A stream of a number and so many structures.
    template <class Structure>
    void AddList(std::size_t index, ULONG32 type, const std::vector<Structure>& list) {
        const auto count = static_cast<ULONG32>(list.size());
        MINIDUMP_LOCATION_DESCRIPTOR place = Append(&count, sizeof count);
        place.DataSize += Append(list.data(), list.size() * sizeof(Structure)).DataSize;
        m_streams[index] = {type, place};
    }

    RVA AppendText(const std::wstring& text) {
        const auto size = static_cast<ULONG32>(text.size() * sizeof(wchar_t));
        const RVA place = Append(&size, sizeof size).Rva;
        Append(text.c_str(), size + sizeof(wchar_t));
        return place;
    }

    void AddSystem() {
        MINIDUMP_SYSTEM_INFO system{};
        system.ProcessorArchitecture = PROCESSOR_ARCHITECTURE_AMD64;
        system.NumberOfProcessors = 1;
        system.ProductType = VER_NT_WORKSTATION;
        OSVERSIONINFOEXW version{};
        version.dwOSVersionInfoSize = sizeof version;
        GetVersionExW(reinterpret_cast<OSVERSIONINFOW*>(&version));
        system.MajorVersion = version.dwMajorVersion;
        system.MinorVersion = version.dwMinorVersion;
        system.BuildNumber = version.dwBuildNumber;
        system.PlatformId = VER_PLATFORM_WIN32_NT;
        system.CSDVersionRva = AppendText({});
        AddStream(0, SystemInfoStream, system);
    }

    void AddModules() {
        std::array<HMODULE, 512> modules{};
        DWORD size = 0;
        EnumProcessModules(m_process, modules.data(), sizeof modules, &size);
        std::vector<MINIDUMP_MODULE> list;
        for (std::size_t i = 0; i < std::min<std::size_t>(modules.size(), size / sizeof modules[0]); ++i) {
            MODULEINFO info{};
            wchar_t name[MAX_PATH] = L"";
            if (!GetModuleInformation(m_process, modules[i], &info, sizeof info))
                continue;
            GetModuleFileNameExW(m_process, modules[i], name, MAX_PATH);
            MINIDUMP_MODULE module{};
            module.BaseOfImage = reinterpret_cast<ULONG64>(info.lpBaseOfDll);
            module.SizeOfImage = info.SizeOfImage;
            IMAGE_DOS_HEADER dos{};
            IMAGE_NT_HEADERS64 image{};
            if (Read(m_process, module.BaseOfImage, dos) &&
                Read(m_process, module.BaseOfImage + static_cast<ULONG64>(dos.e_lfanew), image)) {
                module.CheckSum = image.OptionalHeader.CheckSum;
                module.TimeDateStamp = image.FileHeader.TimeDateStamp;
            }
            module.ModuleNameRva = AppendText(name);
            list.push_back(module);
            m_known.push_back({module.BaseOfImage, module.BaseOfImage + module.SizeOfImage});
        }
        AddList(1, ModuleListStream, list);
    }

    void AddThreads() {
        const ObjectHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0));
        const DWORD process = GetProcessId(m_process);
        std::vector<MINIDUMP_THREAD> list;
        THREADENTRY32 entry{};
        entry.dwSize = sizeof entry;
        for (BOOL more = Thread32First(snapshot.get(), &entry); more;
             more = Thread32Next(snapshot.get(), &entry))
            if (entry.th32OwnerProcessID == process)
                AddThread(entry.th32ThreadID, list);
        std::vector<MINIDUMP_MEMORY_DESCRIPTOR> stacks;
        for (const MINIDUMP_THREAD& thread : list)
            stacks.push_back(thread.Stack);
        AddList(2, ThreadListStream, list);
        AddList(3, MemoryListStream, stacks);
    }

    void AddThread(DWORD id, std::vector<MINIDUMP_THREAD>& list) {
        constexpr DWORD access = THREAD_SUSPEND_RESUME | THREAD_GET_CONTEXT | THREAD_QUERY_INFORMATION;
        const ObjectHandle handle(OpenThread(access, FALSE, id));
        if (!handle || SuspendThread(handle.get()) == static_cast<DWORD>(-1))
            return;
        CONTEXT context{};
        context.ContextFlags = CONTEXT_CONTROL | CONTEXT_INTEGER; // the others may hold what was typed
        if (GetThreadContext(handle.get(), &context)) {
            MINIDUMP_THREAD thread{};
            thread.ThreadId = id;
            const Range stack = StackFrom(context.Rsp);
            const Words words = ReadStack(stack);
            thread.Stack = {stack.begin, Append(words.data(), words.size() * sizeof(ULONG64))};
            CleanRegisters(context, stack);
            thread.ThreadContext = Append(&context, sizeof context);
            list.push_back(thread);
        }
        ResumeThread(handle.get());
    }

    /// From the pointer to the end of the stack.
    Range StackFrom(ULONG64 pointer) const {
        MEMORY_BASIC_INFORMATION region{};
        if (!VirtualQueryEx(m_process, reinterpret_cast<const void*>(pointer), &region, sizeof region))
            return {pointer, pointer};
        return {pointer, reinterpret_cast<ULONG64>(region.BaseAddress) + region.RegionSize};
    }

    Words ReadStack(const Range& stack) const {
        Words words(std::min<std::size_t>(stack.end - stack.begin, MostOfStack) / sizeof(ULONG64));
        if (!ReadProcessMemory(m_process, reinterpret_cast<const void*>(stack.begin), words.data(),
                               words.size() * sizeof(ULONG64), nullptr))
            return {};
        Clean(words.data(), words.data() + words.size(), stack);
        return words;
    }

    /// Takes out what is no address of a module or of this stack.
    void Clean(ULONG64* begin, ULONG64* end, const Range& stack) const {
        const auto isData = [&](ULONG64 word) {
            return !stack.Holds(word) &&
                   std::none_of(m_known.begin(), m_known.end(),
                                [word](const Range& module) { return module.Holds(word); });
        };
        std::replace_if(begin, end, isData, 0);
    }

    void CleanRegisters(CONTEXT& context, const Range& stack) const {
        Clean(&context.Rax, &context.Rip + 1, stack); // they lie one behind the other
    }

    void AddException() {
        EXCEPTION_POINTERS pointers{};
        EXCEPTION_RECORD record{};
        CONTEXT context{};
        if (!Read(m_process, reinterpret_cast<ULONG64>(m_crash.ExceptionPointers), pointers) ||
            !Read(m_process, reinterpret_cast<ULONG64>(pointers.ExceptionRecord), record) ||
            !Read(m_process, reinterpret_cast<ULONG64>(pointers.ContextRecord), context))
            return;
        context.ContextFlags = CONTEXT_CONTROL | CONTEXT_INTEGER;
        context.FltSave = {};
        std::fill(std::begin(context.VectorRegister), std::end(context.VectorRegister), M128A{});
        CleanRegisters(context, StackFrom(context.Rsp));
        MINIDUMP_EXCEPTION_STREAM stream{};
        stream.ThreadId = m_crash.ThreadId;
        stream.ExceptionRecord.ExceptionCode = record.ExceptionCode;
        stream.ExceptionRecord.ExceptionFlags = record.ExceptionFlags;
        stream.ExceptionRecord.ExceptionAddress = reinterpret_cast<ULONG64>(record.ExceptionAddress);
        stream.ExceptionRecord.NumberParameters = record.NumberParameters;
        std::copy(std::begin(record.ExceptionInformation), std::end(record.ExceptionInformation),
                  std::begin(stream.ExceptionRecord.ExceptionInformation));
        stream.ThreadContext = Append(&context, sizeof context);
        AddStream(4, ExceptionStream, stream);
    }

    HANDLE m_process;
    const MINIDUMP_EXCEPTION_INFORMATION& m_crash;
    std::array<MINIDUMP_DIRECTORY, 5> m_streams{};
    QByteArray m_bytes;
    std::vector<Range> m_known; // the modules
};

} // namespace

QByteArray MakeMinidump(HANDLE process, const MINIDUMP_EXCEPTION_INFORMATION& crash) {
    return Minidump(process, crash).Make();
}
