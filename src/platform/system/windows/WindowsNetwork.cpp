#include "platform/system/SystemNetwork.h"

// These two in this order, and before all that includes windows.h.
#include <winsock2.h>

#include <iphlpapi.h>

#include <QHostAddress>
#include <glog/logging.h>
#include <vector>

namespace {

constexpr ULONG FirstBufferSize = 16 * 1024; // which is enough nearly always
constexpr int MostAttempts = 3;              // the adapters may become more meanwhile
constexpr ULONG Flags =
    GAA_FLAG_INCLUDE_GATEWAYS | GAA_FLAG_SKIP_ANYCAST | GAA_FLAG_SKIP_MULTICAST | GAA_FLAG_SKIP_DNS_SERVER;

class WindowsNetwork final : public SystemNetwork {
public:
    QStringList Gateways() const override {
        ULONG size = FirstBufferSize;
        std::vector<char> buffer;
        IP_ADAPTER_ADDRESSES* adapters = nullptr;
        ULONG result = ERROR_BUFFER_OVERFLOW;
        for (int attempt = 0; attempt < MostAttempts && result == ERROR_BUFFER_OVERFLOW; ++attempt) {
            buffer.resize(size);
            adapters = reinterpret_cast<IP_ADAPTER_ADDRESSES*>(buffer.data());
            result = GetAdaptersAddresses(AF_UNSPEC, Flags, nullptr, adapters, &size);
        }
        QStringList gateways;
        if (result != NO_ERROR) {
            LOG_IF(WARNING, result != ERROR_NO_DATA)
                << "WindowsNetwork::Gateways GetAdaptersAddresses failed: " << result;
            return gateways;
        }
        for (; adapters; adapters = adapters->Next) {
            if (adapters->OperStatus != IfOperStatusUp)
                continue;
            for (const auto* gateway = adapters->FirstGatewayAddress; gateway; gateway = gateway->Next)
                gateways += QHostAddress(gateway->Address.lpSockaddr).toString();
        }
        gateways.removeDuplicates();
        return gateways;
    }
};

} // namespace

const SystemNetwork& SystemNetwork::Native() {
    static const WindowsNetwork network;
    return network;
}
