#include "platform/system/SystemAppearance.h"

namespace {

class UnixAppearance final : public SystemAppearance {
public:
    std::optional<bool> IsTaskbarDark() const override { return std::nullopt; }
    std::optional<bool> AreProgramsDark() const override { return std::nullopt; }
};

} // namespace

const SystemAppearance& SystemAppearance::Native() {
    static const UnixAppearance appearance;
    return appearance;
}
