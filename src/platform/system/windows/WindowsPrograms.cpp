#include "platform/system/SystemPrograms.h"

#include <algorithm>
#include <memory>
#include <type_traits>
#include <vector>

#include <windows.h>

#include <wincrypt.h>

namespace {

struct CloseStore {
    void operator()(HCERTSTORE store) const { CertCloseStore(store, 0); }
};
struct CloseMessage {
    void operator()(HCRYPTMSG message) const { CryptMsgClose(message); }
};
struct FreeCertificate {
    void operator()(PCCERT_CONTEXT certificate) const { CertFreeCertificateContext(certificate); }
};
using Store = std::unique_ptr<void, CloseStore>;
using Message = std::unique_ptr<void, CloseMessage>;
using Certificate = std::unique_ptr<const CERT_CONTEXT, FreeCertificate>;

struct Translation {
    WORD language;
    WORD codePage;
};

constexpr DWORD LargestResource = 1 << 20;

/// The resource's text for `name`, in the first of its languages. The program may have put in what it likes.
QString VersionText(const std::vector<BYTE>& resource, const wchar_t* name) {
    Translation* translation = nullptr;
    UINT size = 0;
    if (!VerQueryValueW(resource.data(), L"\\VarFileInfo\\Translation",
                        reinterpret_cast<void**>(&translation), &size) ||
        size < sizeof(Translation))
        return {};
    const QString path = QStringLiteral("\\StringFileInfo\\%1%2\\%3")
                             .arg(translation->language, 4, 16, QLatin1Char('0'))
                             .arg(translation->codePage, 4, 16, QLatin1Char('0'))
                             .arg(QString::fromWCharArray(name));
    void* value = nullptr;
    if (!VerQueryValueW(resource.data(), path.toStdWString().c_str(), &value, &size))
        return {};
    const auto* text = static_cast<const wchar_t*>(value);
    const auto* limit = reinterpret_cast<const wchar_t*>(resource.data()) + resource.size() / sizeof(wchar_t);
    const auto* end = std::find(text, std::min(text + size, limit), L'\0');
    return QString::fromWCharArray(text, static_cast<int>(end - text));
}

/// The certificate of the message's first signer; null when it has none.
Certificate FirstSigner(HCRYPTMSG message, HCERTSTORE store) {
    DWORD size = 0;
    if (!CryptMsgGetParam(message, CMSG_SIGNER_CERT_INFO_PARAM, 0, nullptr, &size))
        return nullptr;
    std::vector<BYTE> info(size);
    if (!CryptMsgGetParam(message, CMSG_SIGNER_CERT_INFO_PARAM, 0, info.data(), &size))
        return nullptr;
    return Certificate(CertGetSubjectCertificateFromStore(store, X509_ASN_ENCODING | PKCS_7_ASN_ENCODING,
                                                          reinterpret_cast<CERT_INFO*>(info.data())));
}

class WindowsPrograms final : public SystemPrograms {
public:
    QString GetProductName(const QString& file) const override {
        const std::wstring path = file.toStdWString();
        const DWORD size = GetFileVersionInfoSizeW(path.c_str(), nullptr);
        if (size == 0 || size > LargestResource)
            return {};
        std::vector<BYTE> resource(size);
        if (!GetFileVersionInfoW(path.c_str(), 0, size, resource.data()))
            return {};
        return VersionText(resource, L"ProductName");
    }

    QString GetSubjectName(const QString& file) const override {
        HCERTSTORE openedStore = nullptr;
        HCRYPTMSG openedMessage = nullptr;
        if (!CryptQueryObject(CERT_QUERY_OBJECT_FILE, file.toStdWString().c_str(),
                              CERT_QUERY_CONTENT_FLAG_PKCS7_SIGNED_EMBED, CERT_QUERY_FORMAT_FLAG_BINARY, 0,
                              nullptr, nullptr, nullptr, &openedStore, &openedMessage, nullptr))
            return {};
        const Store store(openedStore);
        const Message message(openedMessage);
        const Certificate signer = FirstSigner(message.get(), store.get());
        if (!signer)
            return {};
        wchar_t name[256];
        CertGetNameStringW(signer.get(), CERT_NAME_SIMPLE_DISPLAY_TYPE, 0, nullptr, name, 256);
        return QString::fromWCharArray(name);
    }
};

} // namespace

const SystemPrograms& SystemPrograms::Native() {
    static const WindowsPrograms programs;
    return programs;
}
