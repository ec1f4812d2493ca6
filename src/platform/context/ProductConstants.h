#pragma once

/// Names shared by the processes of the agent.
namespace Product {

inline constexpr char Name[] = "Velmora RYX";
inline constexpr char Version[] = "1.23.0.2907";

inline constexpr char ServicePipe[] = "\\\\.\\pipe\\velmora_ryx_windows";
inline constexpr char TestPipe[] = "\\\\.\\pipe\\velmora_ryx_test";

} // namespace Product
