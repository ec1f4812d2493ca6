#include "platform/link/RyxPackage.h"

namespace {

void PutUint32(char* out, std::uint32_t value) {
    for (int i = 0; i < 4; ++i)
        out[i] = static_cast<char>(value >> (8 * i) & 0xff);
}

std::uint32_t GetUint32(const char* in) {
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(in[i])) << (8 * i);
    return value;
}

} // namespace

std::string RyxPackage::PackageData(PipeKey key, const std::string& body) {
    std::string packet;
    if (body.size() > MaxBodySize)
        return packet;
    packet.reserve(HeaderSize + body.size());
    packet.resize(HeaderSize);
    PutUint32(&packet[0], static_cast<std::uint32_t>(body.size()));
    PutUint32(&packet[4], static_cast<std::uint32_t>(key));
    packet += body;
    return packet;
}

bool RyxPackage::IsPackage(const std::string& packet) {
    return packet.size() >= HeaderSize && packet.size() <= HeaderSize + MaxBodySize &&
           packet.size() == HeaderSize + GetUint32(packet.data());
}

PipeKey RyxPackage::KeyOf(const std::string& packet) {
    return static_cast<PipeKey>(static_cast<std::int32_t>(GetUint32(packet.data() + 4)));
}

void FrameDecoder::Append(const char* data, std::size_t size) {
    // Moving the rest to the front only when the used part outweighs it keeps the cost per byte constant.
    if (m_begin > m_buffer.size() / 2) {
        m_buffer.erase(0, m_begin);
        m_begin = 0;
    }
    m_buffer.append(data, size);
}

std::uint32_t FrameDecoder::ClaimedBodySize() const {
    return PendingSize() < RyxPackage::HeaderSize ? 0 : GetUint32(m_buffer.data() + m_begin);
}

FrameDecoder::Result FrameDecoder::Next(Frame& frame) {
    const std::uint32_t length = ClaimedBodySize();
    if (length > RyxPackage::MaxBodySize)
        return Result::TooLong;
    if (PendingSize() < RyxPackage::HeaderSize + length)
        return Result::Incomplete;

    const char* header = m_buffer.data() + m_begin;
    frame.key = static_cast<PipeKey>(static_cast<std::int32_t>(GetUint32(header + 4)));
    frame.body.assign(header + RyxPackage::HeaderSize, length);
    m_begin += RyxPackage::HeaderSize + length;
    if (m_begin == m_buffer.size())
        Reset();
    return Result::Frame;
}

void FrameDecoder::Reset() {
    m_begin = 0;
    // One large frame must not keep its memory for the life of the process.
    if (m_buffer.capacity() > 1024 * 1024)
        std::string().swap(m_buffer);
    else
        m_buffer.clear();
}
