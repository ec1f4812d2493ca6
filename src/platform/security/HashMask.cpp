#include "platform/security/HashMask.h"

#include <string_view>

namespace {

constexpr std::string_view Words = "password update: ";

} // namespace

void HashMask::Apply(char* text, std::size_t size) {
    for (char* at = text; at != text + size; ++at) {
        if (m_matched < Words.size())
            m_matched = *at == Words[m_matched] ? m_matched + 1 : (*at == Words[0] ? 1 : 0);
        else if (*at == '\n' || *at == '\r')
            m_matched = 0;
        else
            *at = '*';
    }
}
