#include "platform/system/SystemDesktop.h"

#include "platform/system/x11/X11Facts.h"
#include "platform/system/x11/X11ShownWindows.h"

#include <QByteArrayList>

namespace {

xcb_window_t Id(WId window) {
    return static_cast<xcb_window_t>(window);
}

// Of the Control Panel's watch nothing has a meaning here.
class X11Desktop final : public SystemDesktop {
public:
    Watch WatchShown(const std::function<void(WId)>& shown) const override {
        return X11ShownWindows::Begin(shown);
    }

    void EndWatch(Watch watch) const override { static_cast<X11ShownWindows*>(watch)->End(); }

    /// There is nothing to wait for: a program does not tell that it has handled a message.
    void Close(WId window) const override { RequestClose(window); }

    void RequestClose(WId window) const override {
        const X11Connection* x11 = X11Connection::Get();
        if (!x11)
            return;
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = Id(window);
        event.type = Atom(*x11, "WM_PROTOCOLS");
        event.data.data32[0] = Atom(*x11, "WM_DELETE_WINDOW");
        event.data.data32[1] = XCB_CURRENT_TIME;
        xcb_send_event(x11->Server(), 0, event.window, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char*>(&event));
        xcb_flush(x11->Server());
    }

    std::optional<std::vector<WId>> TopLevelWindows() const override {
        const X11Connection* x11 = X11Connection::Get();
        if (!x11)
            return std::vector<WId>();
        const auto tree =
            Own(xcb_query_tree_reply(x11->Server(), xcb_query_tree(x11->Server(), x11->Root()), nullptr));
        if (!tree)
            return std::nullopt;
        std::vector<WId> windows;
        for (int i = xcb_query_tree_children_length(tree.get()) - 1; i >= 0; --i)
            windows.push_back(ClientIn(*x11, xcb_query_tree_children(tree.get())[i]));
        return windows;
    }

    quint32 ProcessOf(WId window) const override {
        const X11Connection* x11 = X11Connection::Get();
        return x11 ? ::ProcessOf(*x11, Id(window)) : 0;
    }

    // Only windows of the root are told of, so none is a child, and none is disabled.
    ExStyle GetWindowExStyle(WId window) const override {
        constexpr std::uint32_t inputHint = 1;
        const X11Property hints = Property(window, "WM_HINTS");
        ExStyle style;
        style.takesNoActivation = (hints.Number(0) & inputHint) && hints.Number(1) == 0;
        return style;
    }

    /// The second of the property's two texts.
    QString GetWindowClassName(WId window) const override {
        return QString::fromUtf8(Property(window, "WM_CLASS").bytes.split('\0').value(1));
    }

    QString GetWindowTitle(WId window) const override {
        const X11Connection* x11 = X11Connection::Get();
        if (!x11)
            return {};
        for (const char* name : {"_NET_WM_NAME", "WM_NAME"})
            if (const X11Property title = PropertyOf(*x11, Id(window), name); title.IsThere())
                return TextOf(*x11, title);
        return {};
    }

    std::optional<QRect> GetWindowGeometry(WId window) const override {
        const X11Connection* x11 = X11Connection::Get();
        const QRect place = x11 ? PlaceOf(*x11, Id(window)) : QRect();
        return place.isValid() ? std::optional(place) : std::nullopt;
    }

    bool IsVisible(WId window) const override {
        const X11Connection* x11 = X11Connection::Get();
        return x11 && IsViewable(*x11, Id(window));
    }

    bool IsEnabled(WId) const override { return true; }

private:
    static X11Property Property(WId window, const char* name) {
        const X11Connection* x11 = X11Connection::Get();
        return x11 ? PropertyOf(*x11, Id(window), name) : X11Property();
    }
};

} // namespace

const SystemDesktop& SystemDesktop::Native() {
    static const X11Desktop desktop;
    return desktop;
}
