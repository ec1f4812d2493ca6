#include "Desktop.h"

#include <QDir>
#include <algorithm>
#include <stdexcept>

// Behind Qt's headers: X.h defines common words as macros.
#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

namespace {

constexpr int ScreenWidth = 1280;
constexpr int ScreenHeight = 800;
constexpr int MostLooks = 5; // at windows that another program restacks all the time

/// Windows may go while they are looked at; that is no error here.
int IgnoreError(::Display*, XErrorEvent*) {
    return 0;
}

} // namespace

Desktop::Desktop(const std::string& display) : m_name(display) {
    if (m_name.empty())
        StartScreen();
    XSetErrorHandler(IgnoreError);
    m_display = XOpenDisplay(m_name.c_str());
    if (!m_display)
        throw std::runtime_error("no X display " + m_name);
    int ignored = 0;
    if (!XTestQueryExtension(m_display, &ignored, &ignored, &ignored, &ignored))
        throw std::runtime_error("the X display " + m_name + " has no XTEST extension");
    if (display.empty())
        StartWindowManager();
    XSelectInput(m_display, DefaultRootWindow(m_display), SubstructureNotifyMask);
}

Desktop::~Desktop() {
    if (m_display)
        XCloseDisplay(m_display);
}

void Desktop::StartScreen() {
    // The server itself finds a free number and tells it on its standard output.
    const std::string size = std::to_string(ScreenWidth) + 'x' + std::to_string(ScreenHeight) + "x24";
    m_screen.Start({"Xvfb", "-displayfd", "1", "-screen", "0", size, "-nolisten", "tcp", "-noreset"});
    const bool started = WaitUntil(
        [this] { return m_screen.Output().find('\n') != std::string::npos || !m_screen.IsRunning(); });
    const std::string& number = m_screen.Output();
    if (!started || number.find('\n') == std::string::npos)
        throw std::runtime_error("Xvfb did not start");
    m_name = ':' + number.substr(0, number.find('\n'));
}

void Desktop::StartWindowManager() {
    m_windowManager.Start({"openbox", "--sm-disable"}, {"DISPLAY=" + m_name});
    const auto manages = [this] {
        return Property(DefaultRootWindow(m_display), "_NET_SUPPORTING_WM_CHECK", XA_WINDOW).has_value();
    };
    if (!WaitUntil([&] { return manages() || !m_windowManager.IsRunning(); }) || !manages())
        throw std::runtime_error("openbox did not start");

    // It has told that it is there before it is ready: a window that asks to be shown then is forgotten.
    const unsigned long probe = ShowWindow("Probe", QRect(0, 0, 100, 100), false);
    const bool ready = WaitUntil([&] {
        XMapWindow(m_display, probe);
        return Find("Probe").has_value();
    });
    if (!ready)
        throw std::runtime_error("openbox shows no window");
    DestroyWindow(probe);
}

QSize Desktop::Size() const {
    const int screen = DefaultScreen(m_display);
    return {DisplayWidth(m_display, screen), DisplayHeight(m_display, screen)};
}

unsigned long Desktop::AtomOf(const char* name) const {
    return XInternAtom(m_display, name, False);
}

std::optional<unsigned long> Desktop::Property(unsigned long window, const char* name,
                                               unsigned long type) const {
    unsigned char* value = nullptr;
    ::Atom found = 0;
    int format = 0;
    unsigned long count = 0, left = 0;
    XGetWindowProperty(m_display, window, AtomOf(name), 0, 1, False, type, &found, &format, &count, &left,
                       &value);
    std::optional<unsigned long> number;
    if (value && count == 1)
        number = *reinterpret_cast<unsigned long*>(value);
    if (value)
        XFree(value);
    return number;
}

std::string Desktop::Title(unsigned long window) const {
    for (const char* property : {"_NET_WM_NAME", "WM_NAME"}) {
        XTextProperty text{};
        if (!XGetTextProperty(m_display, window, &text, AtomOf(property)) || !text.value)
            continue;
        std::string title(reinterpret_cast<char*>(text.value), text.nitems);
        XFree(text.value);
        if (!title.empty())
            return title;
    }
    return {};
}

std::vector<DesktopWindow> Desktop::Windows() const {
    const auto look = [this] {
        std::vector<DesktopWindow> windows;
        AddWindows(DefaultRootWindow(m_display), windows);
        return windows;
    };
    const auto isSame = [](const DesktopWindow& one, const DesktopWindow& other) {
        return one.id == other.id;
    };
    // Order and state are read one after the other: they belong together when the order is still the same.
    std::vector<DesktopWindow> windows = look();
    for (int tries = 0; tries < MostLooks; ++tries) {
        std::vector<DesktopWindow> again = look();
        if (std::equal(windows.begin(), windows.end(), again.begin(), again.end(), isSame))
            break;
        windows = std::move(again);
    }
    return windows;
}

void Desktop::AddWindows(unsigned long parent, std::vector<DesktopWindow>& windows) const {
    ::Window root = 0, parentOfParent = 0;
    ::Window* children = nullptr;
    unsigned int count = 0;
    if (!XQueryTree(m_display, parent, &root, &parentOfParent, &children, &count))
        return;
    for (unsigned int i = 0; i < count; ++i) {
        const std::string title = Title(children[i]);
        XWindowAttributes attributes{};
        if (title.empty()) {
            AddWindows(children[i], windows); // a window manager's frame
        } else if (XGetWindowAttributes(m_display, children[i], &attributes)) {
            int x = 0, y = 0;
            ::Window ignored = 0;
            XTranslateCoordinates(m_display, children[i], root, 0, 0, &x, &y, &ignored);
            windows.push_back({children[i], title, QRect(x, y, attributes.width, attributes.height),
                               attributes.map_state == IsViewable});
        }
    }
    if (children)
        XFree(children);
}

std::optional<DesktopWindow> Desktop::Find(const std::string& title) const {
    std::optional<DesktopWindow> found;
    for (const DesktopWindow& window : Windows())
        if (window.viewable && window.title == title)
            found = window;
    return found;
}

std::string Desktop::TopmostTitle() const {
    std::string title;
    for (const DesktopWindow& window : Windows())
        if (window.viewable && window.place.intersects(QRect(QPoint(0, 0), Size())))
            title = window.title;
    return title;
}

bool Desktop::WaitForWindow(const std::string& title) const {
    return WaitUntil([&] { return Find(title).has_value(); });
}

bool Desktop::WaitForNoWindow(const std::string& title) const {
    return WaitUntil([&] { return !Find(title).has_value(); });
}

bool Desktop::HasAnyAppeared() {
    XSync(m_display, False);
    bool appeared = false;
    XEvent event{};
    while (XPending(m_display) > 0) {
        XNextEvent(m_display, &event);
        appeared = appeared || event.type == MapNotify;
    }
    return appeared;
}

QImage Desktop::Screenshot(const QRect& part) const {
    XImage* picture = XGetImage(m_display, DefaultRootWindow(m_display), part.x(), part.y(),
                                static_cast<unsigned>(part.width()), static_cast<unsigned>(part.height()),
                                AllPlanes, ZPixmap);
    if (!picture)
        throw std::runtime_error("the screen cannot be read");
    QImage image = QImage(reinterpret_cast<uchar*>(picture->data), part.width(), part.height(),
                          picture->bytes_per_line, QImage::Format_RGB32)
                       .copy();
    XDestroyImage(picture);
    return image;
}

void Desktop::MoveMouse(const QPoint& place) {
    XTestFakeMotionEvent(m_display, DefaultScreen(m_display), place.x(), place.y(), CurrentTime);
    XSync(m_display, False);
}

void Desktop::Click(const QPoint& place) {
    MoveMouse(place);
    XTestFakeButtonEvent(m_display, Button1, True, CurrentTime);
    XTestFakeButtonEvent(m_display, Button1, False, CurrentTime);
    // A window manager that looks at presses first holds the pointer's events back. The mouse must not go on
    // before they are handed on, or the press counts where it is by then.
    WaitUntil([this] {
        ::Window ignored = 0;
        int x = 0, y = 0;
        unsigned int state = 0;
        XQueryPointer(m_display, DefaultRootWindow(m_display), &ignored, &ignored, &x, &y, &x, &y, &state);
        return (state & Button1Mask) == 0;
    });
}

void Desktop::Key(const std::string& name, bool down) {
    const KeySym symbol = XStringToKeysym(name.c_str());
    const KeyCode code = symbol == NoSymbol ? KeyCode(0) : XKeysymToKeycode(m_display, symbol);
    if (code == 0)
        throw std::runtime_error("the keyboard has no key " + name);
    XTestFakeKeyEvent(m_display, code, down ? True : False, CurrentTime);
}

void Desktop::Press(const std::string& key, const std::vector<std::string>& held) {
    for (const std::string& name : held)
        Key(name, true);
    Key(key, true);
    Key(key, false);
    for (auto name = held.rbegin(); name != held.rend(); ++name)
        Key(*name, false);
    XSync(m_display, False);
}

void Desktop::Type(const std::string& text) {
    for (const char character : text) {
        // A character's symbol has its number; what its key says alone is another one for some.
        const KeySym symbol = static_cast<unsigned char>(character);
        const KeyCode code = XKeysymToKeycode(m_display, symbol);
        const bool isShifted = XkbKeycodeToKeysym(m_display, code, 0, 0) != symbol;
        Press(XKeysymToString(symbol),
              isShifted ? std::vector<std::string>{"Shift_L"} : std::vector<std::string>());
    }
}

std::string Desktop::ClipboardText() const {
    const ::Window reader = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, 1, 1, 0, 0, 0);
    const ::Atom property = AtomOf("RYX_PASTED");
    XConvertSelection(m_display, AtomOf("CLIPBOARD"), AtomOf("UTF8_STRING"), property, reader, CurrentTime);
    XEvent answer{};
    std::string pasted;
    WaitUntil([&] { return XCheckTypedWindowEvent(m_display, reader, SelectionNotify, &answer) == True; },
              std::chrono::seconds(2));
    if (answer.xselection.property == property) {
        ::Atom type = 0;
        int format = 0;
        unsigned long count = 0;
        unsigned long more = 0;
        unsigned char* text = nullptr;
        XGetWindowProperty(m_display, reader, property, 0, 1000, False, AnyPropertyType, &type, &format,
                           &count, &more, &text);
        if (text && format == 8)
            pasted.assign(reinterpret_cast<const char*>(text), count);
        XFree(text);
    }
    XDestroyWindow(m_display, reader);
    return pasted;
}

void Desktop::SendToRoot(unsigned long window, const char* message, long first, long second, long third) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = AtomOf(message);
    event.xclient.format = 32;
    event.xclient.data.l[0] = first;
    event.xclient.data.l[1] = second;
    event.xclient.data.l[2] = third;
    XSendEvent(m_display, DefaultRootWindow(m_display), False,
               SubstructureNotifyMask | SubstructureRedirectMask, &event);
    XSync(m_display, False);
}

void Desktop::Close(const DesktopWindow& window) {
    constexpr long fromPager = 2;
    SendToRoot(window.id, "_NET_CLOSE_WINDOW", CurrentTime, fromPager, 0);
}

void Desktop::Activate(const DesktopWindow& window) {
    constexpr long fromPager = 2;
    SendToRoot(window.id, "_NET_ACTIVE_WINDOW", fromPager, CurrentTime, 0);
}

void Desktop::Hide(const DesktopWindow& window) {
    XUnmapWindow(m_display, window.id);
    XSync(m_display, False);
}

void Desktop::Raise(const DesktopWindow& window) {
    XRaiseWindow(m_display, window.id);
    XSync(m_display, False);
}

unsigned long Desktop::ShowWindow(const std::string& title, const QRect& place, bool onTop) {
    const int screen = DefaultScreen(m_display);
    const ::Window window = XCreateSimpleWindow(m_display, RootWindow(m_display, screen), place.x(),
                                                place.y(), static_cast<unsigned>(place.width()),
                                                static_cast<unsigned>(place.height()), 0, 0, 0xff00ff);
    XStoreName(m_display, window, title.c_str());
    XSizeHints hints{};
    hints.flags = USPosition | USSize;
    XSetWMNormalHints(m_display, window, &hints);
    // A window that can be asked to close, or the window manager ends the whole program to close it.
    ::Atom closing = AtomOf("WM_DELETE_WINDOW");
    XSetWMProtocols(m_display, window, &closing, 1);
    if (onTop) {
        const ::Atom above = AtomOf("_NET_WM_STATE_ABOVE");
        XChangeProperty(m_display, window, AtomOf("_NET_WM_STATE"), XA_ATOM, 32, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(&above), 1);
    }
    XMapRaised(m_display, window);
    XSync(m_display, False);
    return window;
}

void Desktop::DestroyWindow(unsigned long window) {
    XDestroyWindow(m_display, window);
    XSync(m_display, False);
}
