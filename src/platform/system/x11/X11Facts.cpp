#include "platform/system/x11/X11Facts.h"

#include <cstring>
#include <map>
#include <mutex>
#include <string>
#include <xcb/res.h>

namespace {

constexpr std::uint32_t LongestProperty = 16384; // in units of 4 bytes

bool IsClient(const X11Connection& x11, xcb_window_t window) {
    return PropertyOf(x11, window, "WM_STATE").IsThere();
}

xcb_window_t FindClient(const X11Connection& x11, xcb_window_t window) {
    if (IsClient(x11, window))
        return window;
    const auto tree = Own(xcb_query_tree_reply(x11.Server(), xcb_query_tree(x11.Server(), window), nullptr));
    const int count = tree ? xcb_query_tree_children_length(tree.get()) : 0;
    for (int i = 0; i < count; ++i)
        if (const xcb_window_t client = FindClient(x11, xcb_query_tree_children(tree.get())[i]))
            return client;
    return XCB_WINDOW_NONE;
}

} // namespace

// The server never changes them, and asking takes as long as what they are needed for.
xcb_atom_t Atom(const X11Connection& x11, const char* name) {
    static std::mutex mutex;
    static auto& known = *new std::map<std::string, xcb_atom_t>; // threads may outlive what is static
    const std::lock_guard<std::mutex> lock(mutex);
    const auto found = known.find(name);
    if (found != known.end())
        return found->second;
    const auto reply = Own(xcb_intern_atom_reply(
        x11.Server(), xcb_intern_atom(x11.Server(), 0, static_cast<std::uint16_t>(std::strlen(name)), name),
        nullptr));
    return known[name] = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

QRect PlaceOf(const X11Connection& x11, xcb_window_t window) {
    const auto size = xcb_get_geometry(x11.Server(), window);
    const auto place = xcb_translate_coordinates(x11.Server(), window, x11.Root(), 0, 0);
    const auto sizeReply = Own(xcb_get_geometry_reply(x11.Server(), size, nullptr));
    const auto placeReply = Own(xcb_translate_coordinates_reply(x11.Server(), place, nullptr));
    return sizeReply && placeReply
               ? QRect(placeReply->dst_x, placeReply->dst_y, sizeReply->width, sizeReply->height)
               : QRect();
}

bool IsViewable(const X11Connection& x11, xcb_window_t window) {
    const auto reply = Own(xcb_get_window_attributes_reply(
        x11.Server(), xcb_get_window_attributes(x11.Server(), window), nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE &&
           reply->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
}

std::uint32_t X11Property::Number(int index) const {
    std::uint32_t number = 0;
    if (bytes.size() >= (index + 1) * static_cast<int>(sizeof number))
        std::memcpy(&number, bytes.constData() + index * static_cast<int>(sizeof number), sizeof number);
    return number;
}

X11Property PropertyOf(const X11Connection& x11, xcb_window_t window, const char* name) {
    const auto reply = Own(xcb_get_property_reply(
        x11.Server(),
        xcb_get_property(x11.Server(), 0, window, Atom(x11, name), XCB_ATOM_ANY, 0, LongestProperty),
        nullptr));
    if (!reply)
        return {};
    return {reply->type, QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())),
                                    xcb_get_property_value_length(reply.get()))};
}

QString TextOf(const X11Connection& x11, const X11Property& property) {
    return property.type == Atom(x11, "UTF8_STRING") ? QString::fromUtf8(property.bytes)
                                                     : QString::fromLatin1(property.bytes);
}

// Programs need not tell their number, and one that they tell need not be theirs; the server knows.
quint32 ProcessOf(const X11Connection& x11, xcb_window_t window) {
    const xcb_res_client_id_spec_t spec{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto reply = Own(xcb_res_query_client_ids_reply(
        x11.Server(), xcb_res_query_client_ids(x11.Server(), 1, &spec), nullptr));
    if (!reply || reply->num_ids == 0)
        return 0;
    const xcb_res_client_id_value_t* id = xcb_res_query_client_ids_ids_iterator(reply.get()).data;
    return xcb_res_client_id_value_value_length(id) > 0 ? *xcb_res_client_id_value_value(id) : 0;
}

bool IsOfWindowManager(const X11Connection& x11, xcb_window_t window) {
    const xcb_window_t managers = PropertyOf(x11, x11.Root(), "_NET_SUPPORTING_WM_CHECK").Number();
    const std::uint32_t ownPart = xcb_get_setup(x11.Server())->resource_id_mask;
    return managers != XCB_WINDOW_NONE && (managers & ~ownPart) == (window & ~ownPart);
}

xcb_window_t ClientIn(const X11Connection& x11, xcb_window_t window) {
    const xcb_window_t client = FindClient(x11, window);
    return client ? client : window;
}
