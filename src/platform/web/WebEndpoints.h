#pragma once

/// Paths of the web service below its base address; docs/web-service.md describes them.
namespace WebEndpoint {

inline constexpr char UploadPolicy[] = "/file/uploadPolicy";
inline constexpr char UploadNotice[] = "/file/uploadNotice";
inline constexpr char DownloadUrl[] = "/file/downloadUrl";
inline constexpr char DeviceLog[] = "/device/log";
inline constexpr char Feedback[] = "/remote/call";

} // namespace WebEndpoint
