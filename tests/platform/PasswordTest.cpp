#include "platform/security/PasswordHelper.h"

#include <gtest/gtest.h>

// Computed by another implementation of the documented function.
TEST(Password, HashIsTheDocumentedOne) {
    EXPECT_EQ(PasswordHelper::HashVelmoraPassword("123456"),
              "a1de740ce1667efce4074e697b06fbf69748c22c4fb61bd326e90650566c39a8");
    EXPECT_EQ(PasswordHelper::HashVelmoraPassword(""),
              "4edbbda05aba52e6f06ff6ae65c1901275bbd3cbd7fbe139d13ed1ccecac5b4c");
}
