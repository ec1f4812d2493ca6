// Feeds a byte stream to the frame decoder in pieces. The first byte is the size of the pieces.

#include "platform/link/RyxPackage.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void Demand(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    const std::size_t pieceSize = std::max<std::size_t>(1, data[0]);
    const std::string stream(reinterpret_cast<const char*>(data) + 1, size - 1);

    FrameDecoder decoder;
    std::string taken; // The frames taken out so far, packed again.
    for (std::size_t begin = 0; begin < stream.size(); begin += pieceSize) {
        const std::size_t end = std::min(stream.size(), begin + pieceSize);
        decoder.Append(stream.data() + begin, end - begin);

        FrameDecoder::Frame frame;
        FrameDecoder::Result result = decoder.Next(frame);
        for (; result == FrameDecoder::Result::Frame; result = decoder.Next(frame))
            taken += RyxPackage::PackageData(frame.key, frame.body);

        Demand(taken.size() + decoder.PendingSize() == end);
        Demand(stream.compare(0, taken.size(), taken) == 0);
        const bool tooLong = decoder.ClaimedBodySize() > RyxPackage::MaxBodySize;
        Demand(tooLong == (result == FrameDecoder::Result::TooLong));
        if (tooLong)
            return 0;
        // Whatever is left is less than one frame.
        Demand(decoder.PendingSize() < RyxPackage::HeaderSize ||
               decoder.PendingSize() < RyxPackage::HeaderSize + decoder.ClaimedBodySize());
    }
    return 0;
}
