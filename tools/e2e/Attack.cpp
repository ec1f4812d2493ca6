// Does to another program's window what any client of the X server may do: ryx-attack COMMAND TITLE [NUMBER]
// Prints "done" when it is done and ends, unless a line below says that it stays.
//
//   hide, minimise, iconic-property, move, shrink, region, input-region, transparent, bottom, adopt, close,
//   destroy
//
//   kill-client: cuts the program off the server
//
//   kill, crash: ends its process
//
//   raise NUMBER: shows a window that no window manager sees and lifts it so many times; stays
//
//   grab: takes keyboard and pointer, if it can within a second; stays
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/shape.h>

#include <csignal>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <unistd.h>

namespace {

Display* display = nullptr;

void Say(const std::string& line) {
    std::cout << line << std::endl;
}

std::string TitleOf(Window window) {
    Atom type = 0;
    int format = 0;
    unsigned long count = 0, rest = 0;
    unsigned char* text = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, "_NET_WM_NAME", False), 0, 200, False,
                       AnyPropertyType, &type, &format, &count, &rest, &text);
    std::string title = text ? reinterpret_cast<const char*>(text) : "";
    XFree(text);
    return title;
}

/// The window with the title in the tree below `parent`; 0 when there is none.
Window Find(Window parent, const std::string& title) {
    if (TitleOf(parent) == title)
        return parent;
    Window root = 0, above = 0, found = 0;
    Window* children = nullptr;
    unsigned count = 0;
    if (XQueryTree(display, parent, &root, &above, &children, &count))
        for (unsigned i = count; i-- > 0 && !found;)
            found = Find(children[i], title);
    XFree(children);
    return found;
}

long PropertyOf(Window window, const char* name) {
    Atom type = 0;
    int format = 0;
    unsigned long count = 0, rest = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, 1, False, XA_CARDINAL, &type,
                       &format, &count, &rest, &data);
    const long value = count == 1 ? *reinterpret_cast<long*>(data) : 0;
    XFree(data);
    return value;
}

void AskToClose(Window window) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
    XSendEvent(display, window, False, NoEventMask, &event);
}

void MakeTransparent(Window window) {
    const unsigned long opacity = 0;
    XChangeProperty(display, window, XInternAtom(display, "_NET_WM_WINDOW_OPACITY", False), XA_CARDINAL, 32,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(&opacity), 1);
}

void Stay() {
    XSync(display, False);
    Say("done");
    for (;;)
        ::pause();
}

void Raise(int times) {
    XSetWindowAttributes attributes{};
    attributes.override_redirect = True;
    attributes.background_pixel = WhitePixel(display, DefaultScreen(display));
    const Window own =
        XCreateWindow(display, DefaultRootWindow(display), 300, 200, 500, 400, 0, CopyFromParent, InputOutput,
                      nullptr, CWOverrideRedirect | CWBackPixel, &attributes);
    XStoreName(display, own, "Raised");
    XMapRaised(display, own);
    for (int i = 0; i < times; ++i) {
        XRaiseWindow(display, own);
        XSync(display, False);
    }
    Stay();
}

/// Tries for a second, for somebody else may have them.
void Grab() {
    const Window root = DefaultRootWindow(display);
    for (int attempt = 0; attempt < 100; ++attempt) {
        XGrabKeyboard(display, root, False, GrabModeAsync, GrabModeAsync, CurrentTime);
        XGrabPointer(display, root, False, ButtonPressMask, GrabModeAsync, GrabModeAsync, None, None,
                     CurrentTime);
        ::usleep(10000);
    }
    Stay();
}

} // namespace

int main(int argc, char** argv) {
    display = XOpenDisplay(nullptr);
    if (!display || argc < 3)
        return EXIT_FAILURE;
    const Window root = DefaultRootWindow(display);
    const Window window = Find(root, argv[2]);
    if (!window) {
        Say("no such window");
        return EXIT_FAILURE;
    }
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    XRectangle corner{0, 0, 10, 10};
    const std::map<std::string, std::function<void()>> acts{
        {"hide", [=] { XUnmapWindow(display, window); }},
        {"minimise", [=] { XIconifyWindow(display, window, DefaultScreen(display)); }},
        {"iconic-property",
         [=] {
             const Atom state = XInternAtom(display, "WM_STATE", False);
             const unsigned long iconic[2] = {IconicState, None};
             XChangeProperty(display, window, state, state, 32, PropModeReplace,
                             reinterpret_cast<const unsigned char*>(iconic), 2);
         }},
        {"move", [=] { XMoveWindow(display, window, 4000, 3000); }},
        {"shrink", [=] { XResizeWindow(display, window, 40, 30); }},
        {"region",
         [=]() mutable {
             XShapeCombineRectangles(display, window, ShapeBounding, 0, 0, &corner, 1, ShapeSet, Unsorted);
         }},
        {"input-region",
         [=]() mutable {
             XShapeCombineRectangles(display, window, ShapeInput, 0, 0, &corner, 1, ShapeSet, Unsorted);
         }},
        {"transparent", [=] { MakeTransparent(window); }},
        {"bottom", [=] { XLowerWindow(display, window); }},
        {"adopt", [=] { XReparentWindow(display, window, Find(root, "Velmora RYX"), 0, 0); }},
        {"close", [=] { AskToClose(window); }},
        {"destroy", [=] { XDestroyWindow(display, window); }},
        {"kill-client", [=] { XKillClient(display, window); }},
        {"crash", [=] { ::kill(static_cast<pid_t>(PropertyOf(window, "_NET_WM_PID")), SIGSEGV); }},
        {"kill", [=] { ::kill(static_cast<pid_t>(PropertyOf(window, "_NET_WM_PID")), SIGKILL); }},
        {"raise", [=] { Raise(argc > 3 ? std::atoi(argv[3]) : 1); }},
        {"grab", Grab},
    };
    const auto act = acts.find(argv[1]);
    if (act == acts.end()) {
        Say("no such command");
        return EXIT_FAILURE;
    }
    act->second();
    XSync(display, False);
    Say("done");
    return EXIT_SUCCESS;
}
