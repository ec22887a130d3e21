#include "core/engine/XTouchConnection.h"

#include <X11/Xlib.h>
#include <X11/extensions/XInput2.h>

namespace skyvane {
namespace {

bool selectionRefused = false;

int noteRefusal(Display*, XErrorEvent*) {
    selectionRefused = true;
    return 0;
}

/// Xlib's own handler would end the program when the selection is refused, so another stands in meanwhile.
bool selectTouches(Display* display, unsigned long window) {
    unsigned char bits[XIMaskLen(XI_LASTEVENT)] = {};
    XISetMask(bits, XI_TouchBegin);
    XISetMask(bits, XI_TouchUpdate);
    XISetMask(bits, XI_TouchEnd);
    XIEventMask mask{};
    mask.deviceid = XIAllMasterDevices;
    mask.mask_len = sizeof bits;
    mask.mask = bits;

    selectionRefused = false;
    XErrorHandler previous = XSetErrorHandler(noteRefusal);
    XISelectEvents(display, window, &mask, 1);
    XSync(display, False);
    XSetErrorHandler(previous);
    return !selectionRefused;
}

} // namespace

std::unique_ptr<XTouchConnection> XTouchConnection::open(unsigned long window, std::string& trouble) {
    Display* display = XOpenDisplay(nullptr);
    if (!display) {
        trouble = "the display can't be opened a second time.";
        return nullptr;
    }
    int opcode = 0, firstEvent = 0, firstError = 0, major = 2, minor = 2;
    std::unique_ptr<XTouchConnection> connection(new XTouchConnection(display, 0));
    if (!XQueryExtension(display, "XInputExtension", &opcode, &firstEvent, &firstError) ||
        XIQueryVersion(display, &major, &minor) != Success || major * 100 + minor < 202) {
        trouble = "the display server doesn't offer XInput 2.2.";
        return nullptr;
    }
    connection->opcode_ = opcode;
    if (!selectTouches(display, window)) {
        trouble = "the display server refused to report touches.";
        return nullptr;
    }
    return connection;
}

XTouchConnection::~XTouchConnection() {
    XCloseDisplay(display_);
}

bool XTouchConnection::poll(RawTouch& touch) {
    while (XPending(display_) > 0) {
        XEvent event;
        XNextEvent(display_, &event);
        if (event.xcookie.type != GenericEvent || event.xcookie.extension != opcode_ ||
            !XGetEventData(display_, &event.xcookie))
            continue;
        const int kind = event.xcookie.evtype;
        const bool isTouch = kind == XI_TouchBegin || kind == XI_TouchUpdate || kind == XI_TouchEnd;
        if (isTouch) {
            const auto* data = static_cast<const XIDeviceEvent*>(event.xcookie.data);
            touch.kind = kind == XI_TouchBegin    ? RawTouch::Begin
                         : kind == XI_TouchUpdate ? RawTouch::Update
                                                  : RawTouch::End;
            touch.id = static_cast<unsigned>(data->detail);
            touch.x = static_cast<int>(data->event_x);
            touch.y = static_cast<int>(data->event_y);
            touch.emulatesPointer = (data->flags & XITouchEmulatingPointer) != 0;
        }
        XFreeEventData(display_, &event.xcookie);
        if (isTouch)
            return true;
    }
    return false;
}

} // namespace skyvane
