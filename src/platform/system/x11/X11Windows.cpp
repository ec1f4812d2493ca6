#include "platform/system/SystemWindows.h"

#include "platform/system/x11/X11Facts.h"
#include "platform/system/x11/X11Guard.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <array>
#include <xcb/randr.h>
#include <xcb/shape.h>

namespace {

constexpr char OpacityProperty[] = "_NET_WM_WINDOW_OPACITY";

xcb_window_t Id(WId window) {
    return static_cast<xcb_window_t>(window);
}

void Configure(xcb_window_t window, std::uint16_t what, const std::uint32_t* values) {
    const X11Connection* x11 = X11Connection::Get();
    if (!x11)
        return;
    xcb_configure_window(x11->Server(), window, what, values);
    xcb_flush(x11->Server());
}

/// Whether nothing of another program lies above the window at its place.
bool IsTopmost(const X11Connection& x11, xcb_window_t window, const QRect& place) {
    const auto tree =
        Own(xcb_query_tree_reply(x11.Server(), xcb_query_tree(x11.Server(), x11.Root()), nullptr));
    if (!tree)
        return true;
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    for (int i = xcb_query_tree_children_length(tree.get()) - 1; i >= 0 && children[i] != window; --i)
        if (!X11Guard::Get()->IsWatched(children[i]) && IsViewable(x11, children[i]) &&
            PlaceOf(x11, children[i]).intersects(place))
            return false;
    return true;
}

/// Neither cut to a shape, for the eyes or for the pointer, nor to be shown transparent.
bool IsWhole(const X11Connection& x11, xcb_window_t window, const QRect& place) {
    const auto extents = Own(
        xcb_shape_query_extents_reply(x11.Server(), xcb_shape_query_extents(x11.Server(), window), nullptr));
    if (extents && extents->bounding_shaped)
        return false;
    const auto input = Own(xcb_shape_get_rectangles_reply(
        x11.Server(), xcb_shape_get_rectangles(x11.Server(), window, XCB_SHAPE_SK_INPUT), nullptr));
    if (input) {
        const xcb_rectangle_t* parts = xcb_shape_get_rectangles_rectangles(input.get());
        if (xcb_shape_get_rectangles_rectangles_length(input.get()) != 1 || parts[0].width < place.width() ||
            parts[0].height < place.height())
            return false;
    }
    return !PropertyOf(x11, window, OpacityProperty).IsThere();
}

class X11Windows final : public SystemWindows {
public:
    /// The window manager decides; a request to activate is all there is.
    void AllowTakingForeground() const override {}

    /// A window that was never mapped is on no task bar. Minimising it first would make it come up as an
    /// icon, whenever it is shown.
    void CreateHidden(QWidget& window) const override { window.winId(); }

    void RaiseTopmost(WId window) const override {
        const std::array<std::uint32_t, 1> values{XCB_STACK_MODE_ABOVE};
        Configure(Id(window), XCB_CONFIG_WINDOW_STACK_MODE, values.data());
    }

    void PlaceBelow(WId window, WId above) const override {
        const std::array<std::uint32_t, 2> values{Id(above), XCB_STACK_MODE_BELOW};
        Configure(Id(window), XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values.data());
    }

    QVector<QRect> ScreenPlaces() const override {
        QVector<QRect> places;
        if (const X11Connection* x11 = X11Connection::Get())
            places = Monitors(*x11);
        if (places.isEmpty())
            for (const QScreen* screen : QGuiApplication::screens())
                places.append(
                    QRect(screen->geometry().topLeft(), screen->size() * screen->devicePixelRatio()));
        return places;
    }

    bool CanCover() const override {
        return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    }

    /// No window manager may move, minimise or cover the window, and none of the windows that bypass it, too,
    /// stays above it.
    void PrepareCover(QWidget& window, const QColor& background) const override {
        window.setWindowFlag(Qt::X11BypassWindowManagerHint);
        const X11Connection* x11 = X11Connection::Get();
        if (!x11)
            return;
        // Qt raises a tool window whenever it shows one, over a lock, too, and by requests of its own. What
        // bypasses the window manager is on no task bar, whatever its type.
        window.setWindowFlags((window.windowFlags() & ~Qt::WindowType_Mask) | Qt::Window);
        const std::uint32_t pixel = background.rgb() & RGB_MASK;
        xcb_change_window_attributes(x11->Server(), Id(window.winId()), XCB_CW_BACK_PIXEL, &pixel);
        xcb_flush(x11->Server());
    }

    void Guard(WId window, const QRect&, const std::function<void()>& changed) const override {
        if (X11Guard* guard = X11Guard::Get())
            guard->Watch(Id(window), changed);
    }

    void Unguard(WId window) const override {
        if (X11Guard* guard = X11Guard::Get())
            guard->Forget(Id(window));
    }

    std::optional<Facts> FactsOf(WId window) const override {
        const X11Connection* x11 = X11Connection::Get();
        Facts facts;
        if (!x11 || !X11Guard::Get())
            return facts;
        const xcb_window_t id = Id(window);
        const auto tree =
            Own(xcb_query_tree_reply(x11->Server(), xcb_query_tree(x11->Server(), id), nullptr));
        if (!tree)
            return std::nullopt;
        facts.place = PlaceOf(*x11, id);
        facts.shown = IsViewable(*x11, id);
        facts.onTop = tree->parent == x11->Root();
        facts.topmost = !facts.onTop || IsTopmost(*x11, id, facts.place);
        facts.whole = IsWhole(*x11, id, facts.place);
        return facts;
    }

    void Restore(WId window, const QRect& place, WId above) const override {
        const X11Connection* x11 = X11Connection::Get();
        if (!x11)
            return;
        const xcb_window_t id = Id(window);
        const auto tree =
            Own(xcb_query_tree_reply(x11->Server(), xcb_query_tree(x11->Server(), id), nullptr));
        if (tree && tree->parent != x11->Root())
            xcb_reparent_window(x11->Server(), id, x11->Root(), static_cast<std::int16_t>(place.x()),
                                static_cast<std::int16_t>(place.y()));
        for (const xcb_shape_sk_t kind : {XCB_SHAPE_SK_BOUNDING, XCB_SHAPE_SK_CLIP, XCB_SHAPE_SK_INPUT})
            xcb_shape_mask(x11->Server(), XCB_SHAPE_SO_SET, kind, id, 0, 0, XCB_NONE);
        xcb_delete_property(x11->Server(), id, Atom(*x11, OpacityProperty));
        if (above)
            PlaceBelow(window, above);
        else
            RaiseTopmost(window);
        const std::array<std::uint32_t, 4> values{
            static_cast<std::uint32_t>(place.x()), static_cast<std::uint32_t>(place.y()),
            static_cast<std::uint32_t>(place.width()), static_cast<std::uint32_t>(place.height())};
        xcb_map_window(x11->Server(), id);
        Configure(id,
                  XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                      XCB_CONFIG_WINDOW_HEIGHT,
                  values.data());
    }

    void Activate(QWidget& window) const override { window.activateWindow(); }

private:
    static QVector<QRect> Monitors(const X11Connection& x11) {
        QVector<QRect> places;
        const auto reply = Own(xcb_randr_get_monitors_reply(
            x11.Server(), xcb_randr_get_monitors(x11.Server(), x11.Root(), 1), nullptr));
        if (!reply)
            return places;
        for (auto monitor = xcb_randr_get_monitors_monitors_iterator(reply.get()); monitor.rem > 0;
             xcb_randr_monitor_info_next(&monitor)) {
            const QRect place(monitor.data->x, monitor.data->y, monitor.data->width, monitor.data->height);
            if (monitor.data->primary)
                places.prepend(place);
            else
                places.append(place);
        }
        return places;
    }
};

} // namespace

const SystemWindows& SystemWindows::Native() {
    static const X11Windows windows;
    return windows;
}
