#pragma once

/// Names shared by the processes of the agent.
namespace Product {

inline constexpr char Name[] = "Velmora RYX";
inline constexpr char Version[] = "1.23.0.2907";

inline constexpr char AgentExecutable[] = "RyxEntry.exe";
inline constexpr char ServicePipe[] = "\\\\.\\pipe\\velmora_ryx_windows";
inline constexpr char TestPipe[] = "\\\\.\\pipe\\velmora_ryx_test";

inline constexpr char ShellMarker[] = "velmora_ryx_shared_memory_shell";
inline constexpr char AdminMarker[] = "velmora_ryx_shared_memory_admin";
inline constexpr char SystemMarker[] = "velmora_ryx_shared_memory_system";

} // namespace Product
