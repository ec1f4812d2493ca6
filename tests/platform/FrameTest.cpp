#include "platform/link/ReconnectBackoff.h"
#include "platform/link/RyxPackage.h"

#include <gtest/gtest.h>
#include <random>

namespace {

const std::string LongBody(100000, 'x');

struct Message {
    std::int32_t key;
    std::string body;
};
const std::vector<Message> Messages{
    {0, ""}, {2, "{\"status\": 2}"}, {-7, std::string("a\0b", 3)}, {2147483647, LongBody}};

} // namespace

TEST(Frame, LayoutIsLittleEndianLengthKeyBody) {
    EXPECT_EQ(RyxPackage::PackageData(static_cast<PipeKey>(0x01020304), "ab"),
              std::string("\x02\0\0\0\x04\x03\x02\x01"
                          "ab",
                          10));
    EXPECT_EQ(RyxPackage::PackageData(static_cast<PipeKey>(-2), ""),
              std::string("\0\0\0\0\xfe\xff\xff\xff", 8));
}

TEST(Frame, AnyCutOfTheStreamGivesTheSameMessages) {
    std::string stream;
    for (const Message& message : Messages)
        stream += RyxPackage::PackageData(static_cast<PipeKey>(message.key), message.body);

    std::mt19937 random(7); // the same cuts in every run
    for (const std::size_t largest : {std::size_t{1}, std::size_t{9}, std::size_t{5000}, stream.size()}) {
        FrameDecoder decoder;
        std::vector<Message> seen;
        for (std::size_t at = 0; at < stream.size();) {
            const std::size_t piece = std::min(stream.size() - at, random() % largest + 1);
            decoder.Append(stream.data() + at, piece);
            at += piece;
            FrameDecoder::Frame frame;
            while (decoder.Next(frame) == FrameDecoder::Result::Frame)
                seen.push_back({static_cast<std::int32_t>(frame.key), frame.body});
        }
        ASSERT_EQ(seen.size(), Messages.size()) << "pieces of up to " << largest;
        for (std::size_t i = 0; i < seen.size(); ++i) {
            EXPECT_EQ(seen[i].key, Messages[i].key);
            EXPECT_EQ(seen[i].body, Messages[i].body);
        }
        EXPECT_EQ(decoder.PendingSize(), 0u);
    }
}

TEST(Frame, LengthLimitHoldsOnBothSides) {
    const std::string largest(RyxPackage::MaxBodySize, 'x');
    const std::string packet = RyxPackage::PackageData(PipeKey::Binding, largest);
    EXPECT_TRUE(RyxPackage::IsPackage(packet));
    EXPECT_TRUE(RyxPackage::PackageData(PipeKey::Binding, largest + 'x').empty());

    FrameDecoder decoder;
    FrameDecoder::Frame frame;
    decoder.Append(packet.data(), packet.size());
    EXPECT_EQ(decoder.Next(frame), FrameDecoder::Result::Frame);

    decoder.Append("\x01\0\0\x01", 4); // one byte beyond the limit
    decoder.Append("\0\0\0\0", 4);
    EXPECT_EQ(decoder.Next(frame), FrameDecoder::Result::TooLong);
    EXPECT_EQ(decoder.ClaimedBodySize(), RyxPackage::MaxBodySize + 1);
}

TEST(Frame, OnlyOneWholeFrameIsAPackage) {
    const std::string packet = RyxPackage::PackageData(PipeKey::Binding, "body");
    EXPECT_TRUE(RyxPackage::IsPackage(packet));
    for (const std::string& wrong : {std::string(), packet.substr(0, 7), packet.substr(0, packet.size() - 1),
                                     packet + 'x', packet + packet})
        EXPECT_FALSE(RyxPackage::IsPackage(wrong)) << wrong.size() << " bytes";
}

TEST(Reconnect, WaitsDoubleToFiveSecondsAndStartOver) {
    ReconnectBackoff backoff;
    for (const int expected : {250, 500, 1000, 2000, 4000, 5000, 5000})
        EXPECT_EQ(backoff.Next(), expected);
    backoff.Reset();
    EXPECT_EQ(backoff.Next(), 250);
}
