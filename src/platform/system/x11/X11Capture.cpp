#include "platform/system/SystemCapture.h"

#include "platform/system/x11/X11Facts.h"

#include <QThread>
#include <optional>
#include <xcb/composite.h>

namespace {

constexpr int RepaintMs = 250;
constexpr int BytesPerPixel = 4;

/// The window's ancestor below the root, and where in it the window lies.
struct TopLevel {
    xcb_window_t window;
    QPoint offset;
};

std::optional<TopLevel> TopLevelOf(const X11Connection& x11, xcb_window_t window) {
    TopLevel top{window, {}};
    for (;;) {
        const auto tree =
            Own(xcb_query_tree_reply(x11.Server(), xcb_query_tree(x11.Server(), top.window), nullptr));
        const auto place =
            Own(xcb_get_geometry_reply(x11.Server(), xcb_get_geometry(x11.Server(), top.window), nullptr));
        if (!tree || !place || tree->parent == XCB_NONE)
            return std::nullopt;
        top.offset += QPoint(place->border_width, place->border_width);
        if (tree->parent == x11.Root())
            return top;
        top.offset += QPoint(place->x, place->y);
        top.window = tree->parent;
    }
}

bool HasNamedPixmaps(const X11Connection& x11) {
    const auto* extension = xcb_get_extension_data(x11.Server(), &xcb_composite_id);
    if (!extension || !extension->present)
        return false;
    const auto version = Own(xcb_composite_query_version_reply(
        x11.Server(), xcb_composite_query_version(x11.Server(), 0, 2), nullptr));
    return version && (version->major_version > 0 || version->minor_version >= 2);
}

class X11Capture final : public SystemCapture {
public:
    Picture Take(WId window) const override {
        const X11Connection* x11 = X11Connection::Get();
        if (!x11 || !HasNamedPixmaps(*x11))
            return {};
        const auto id = static_cast<xcb_window_t>(window);
        const QSize size = PlaceOf(*x11, id).size();
        const auto top = TopLevelOf(*x11, id);
        if (!top || size.isEmpty() || !IsViewable(*x11, id))
            return {Result::NoWindow, {}};

        xcb_composite_redirect_window(x11->Server(), top->window, XCB_COMPOSITE_REDIRECT_AUTOMATIC);
        xcb_flush(x11->Server());
        if (!IsComposited())
            QThread::msleep(RepaintMs); // what was covered has yet to be painted
        const xcb_pixmap_t pixmap = xcb_generate_id(x11->Server());
        xcb_composite_name_window_pixmap(x11->Server(), top->window, pixmap);
        const auto pixels = Own(xcb_get_image_reply(
            x11->Server(),
            xcb_get_image(x11->Server(), XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap,
                          static_cast<int16_t>(top->offset.x()), static_cast<int16_t>(top->offset.y()),
                          static_cast<uint16_t>(size.width()), static_cast<uint16_t>(size.height()), ~0U),
            nullptr));
        if (!pixels)
            return {Result::NoWindow, {}};
        if (xcb_get_image_data_length(pixels.get()) < qint64(size.width()) * size.height() * BytesPerPixel)
            return {};
        return {Result::Done,
                QImage(xcb_get_image_data(pixels.get()), size.width(), size.height(), QImage::Format_RGB32)
                    .copy()};
    }

    bool IsComposited() const override {
        const X11Connection* x11 = X11Connection::Get();
        const auto owner =
            x11 ? Own(xcb_get_selection_owner_reply(
                      x11->Server(), xcb_get_selection_owner(x11->Server(), Atom(*x11, "_NET_WM_CM_S0")),
                      nullptr))
                : Own<xcb_get_selection_owner_reply_t>(nullptr);
        return owner && owner->owner != XCB_NONE;
    }
};

} // namespace

const SystemCapture& SystemCapture::Native() {
    static const X11Capture capture;
    return capture;
}
