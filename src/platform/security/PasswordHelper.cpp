#include "platform/security/PasswordHelper.h"

#include <QCryptographicHash>
#include <QPasswordDigestor>

std::string PasswordHelper::HashVelmoraPassword(const std::string& password) {
    constexpr int hashSize = 32;
    return QPasswordDigestor::deriveKeyPbkdf2(QCryptographicHash::Sha256, QByteArray::fromStdString(password),
                                              QByteArrayLiteral("velmora-ryx-password-v1"), Iterations,
                                              hashSize)
        .toHex()
        .toStdString();
}
