// A session manager, for the end-to-end tests. It prints "SESSION_MANAGER=ADDRESS" for the environment of its
// clients, then "client" for each that registers. On a line "end" it asks all clients to save for the end of
// the session and prints "agreed" or "refused" for each answer; on a line "die" it tells them to end.
#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <poll.h>
#include <string>
#include <vector>

namespace {

struct Client {
    SmsConn connection;
    bool isEnding = false; // it was asked for the end of the session
};

std::vector<Client*> clients;
std::vector<IceConn> connections;

void Say(const std::string& line) {
    std::cout << line << std::endl;
}

Client& Of(SmPointer data) {
    return *static_cast<Client*>(data);
}

Status OnRegister(SmsConn connection, SmPointer data, char* previousId) {
    std::free(previousId);
    char* id = SmsGenerateClientID(connection);
    SmsRegisterClientReply(connection, id);
    std::free(id);
    SmsSaveYourself(connection, SmSaveLocal, False, SmInteractStyleNone, False);
    clients.push_back(&Of(data));
    Say("client");
    return 1;
}

void OnInteractRequest(SmsConn connection, SmPointer, int) {
    SmsInteract(connection);
}

void OnInteractDone(SmsConn, SmPointer, Bool cancelsEnd) {
    if (cancelsEnd)
        Say("refused");
}

void OnSaveDone(SmsConn connection, SmPointer data, Bool) {
    if (Of(data).isEnding)
        Say("agreed");
    Of(data).isEnding = false;
    SmsSaveComplete(connection);
}

void OnPhase2Request(SmsConn connection, SmPointer) {
    SmsSaveYourselfPhase2(connection);
}

void OnClose(SmsConn connection, SmPointer data, int count, char** reasons) {
    clients.erase(std::remove(clients.begin(), clients.end(), &Of(data)), clients.end());
    SmFreeReasons(count, reasons);
    const IceConn ice = SmsGetIceConnection(connection);
    connections.erase(std::remove(connections.begin(), connections.end(), ice), connections.end());
    SmsCleanUp(connection);
    IceCloseConnection(ice);
}

void OnSetProperties(SmsConn, SmPointer, int count, SmProp** properties) {
    std::for_each(properties, properties + count, SmFreeProperty);
    std::free(properties);
}

Status OnNewClient(SmsConn connection, SmPointer, unsigned long* mask, SmsCallbacks* callbacks, char**) {
    auto* client = new Client{connection}; // lives as long as the program
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
            SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
            SmsGetPropertiesProcMask;
    callbacks->register_client = {OnRegister, client};
    callbacks->interact_request = {OnInteractRequest, client};
    callbacks->interact_done = {OnInteractDone, client};
    callbacks->save_yourself_request = {[](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}, client};
    callbacks->save_yourself_phase2_request = {OnPhase2Request, client};
    callbacks->save_yourself_done = {OnSaveDone, client};
    callbacks->close_connection = {OnClose, client};
    callbacks->set_properties = {OnSetProperties, client};
    callbacks->delete_properties = {[](SmsConn, SmPointer, int, char**) {}, client};
    callbacks->get_properties = {
        [](SmsConn connectionOfClient, SmPointer) { SmsReturnProperties(connectionOfClient, 0, nullptr); },
        client};
    return 1;
}

void Follow(const std::string& line) {
    for (Client* client : std::vector<Client*>(clients)) {
        if (line == "end") {
            client->isEnding = true;
            SmsSaveYourself(client->connection, SmSaveBoth, True, SmInteractStyleAny, False);
        } else if (line == "die") {
            SmsDie(client->connection);
        }
    }
}

} // namespace

int main() {
    char error[256] = "";
    int listenerCount = 0;
    IceListenObj* listeners = nullptr;
    if (!SmsInitialize(
            "Velmora", "1", OnNewClient, nullptr, [](char*) -> Bool { return True; }, sizeof error, error) ||
        !IceListenForConnections(&listenerCount, &listeners, sizeof error, error)) {
        std::cerr << error << '\n';
        return EXIT_FAILURE;
    }
    for (int i = 0; i < listenerCount; ++i)
        IceSetHostBasedAuthProc(listeners[i], [](char*) -> Bool { return True; });
    Say(std::string("SESSION_MANAGER=") + IceComposeNetworkIdList(listenerCount, listeners));

    for (;;) {
        std::vector<pollfd> watched{{0, POLLIN, 0}};
        for (int i = 0; i < listenerCount; ++i)
            watched.push_back({IceGetListenConnectionNumber(listeners[i]), POLLIN, 0});
        for (const IceConn connection : connections)
            watched.push_back({IceConnectionNumber(connection), POLLIN, 0});
        ::poll(watched.data(), watched.size(), -1);
        if (watched.front().revents != 0) {
            std::string line;
            if (!std::getline(std::cin, line))
                return EXIT_SUCCESS;
            Follow(line);
        }
        const std::vector<IceConn> known = connections;
        for (std::size_t i = 0; i < known.size(); ++i)
            if (watched[1 + static_cast<std::size_t>(listenerCount) + i].revents != 0)
                IceProcessMessages(known[i], nullptr, nullptr);
        for (int i = 0; i < listenerCount; ++i)
            if (watched[1 + static_cast<std::size_t>(i)].revents != 0) {
                IceAcceptStatus accepted{};
                const IceConn connection = IceAcceptConnection(listeners[i], &accepted);
                while (connection && IceConnectionStatus(connection) == IceConnectPending)
                    IceProcessMessages(connection, nullptr, nullptr);
                if (connection)
                    connections.push_back(connection);
            }
    }
}
