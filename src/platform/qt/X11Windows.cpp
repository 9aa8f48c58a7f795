#include "platform/qt/X11Windows.h"

#ifdef MORVANE_XCB

#include <unistd.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace morvane::platform {
namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

class Display {
 public:
  Display() : connection_(xcb_connect(nullptr, nullptr)) {}
  ~Display() { xcb_disconnect(connection_); }
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;

  bool Works() const { return xcb_connection_has_error(connection_) == 0; }
  xcb_window_t Root() const { return xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root; }

  xcb_atom_t Atom(const char* name) const {
    const auto cookie = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, cookie, nullptr),
                                               &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
  }

  QByteArray Property(xcb_window_t window, xcb_atom_t property) const {
    constexpr std::uint32_t kMaxWords = 65536;
    const auto cookie = xcb_get_property(connection_, 0, window, property, XCB_ATOM_ANY, 0, kMaxWords);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_, cookie, nullptr),
                                                &std::free);
    if (!reply) return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
  }

  QString Title(xcb_window_t window) const {
    const QByteArray utf8 = Property(window, Atom("_NET_WM_NAME"));
    if (!utf8.isEmpty()) return QString::fromUtf8(utf8);
    return QString::fromLatin1(Property(window, XCB_ATOM_WM_NAME));
  }

  bool IsOwn(xcb_window_t window) const {
    const QByteArray bytes = Property(window, Atom("_NET_WM_PID"));
    std::uint32_t pid = 0;
    if (bytes.size() >= static_cast<qsizetype>(sizeof pid)) std::memcpy(&pid, bytes.data(), sizeof pid);
    return pid == static_cast<std::uint32_t>(getpid());
  }

  void Close(xcb_window_t window) const {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = Atom("WM_PROTOCOLS");
    event.data.data32[0] = Atom("WM_DELETE_WINDOW");
    xcb_send_event(connection_, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
    // The answer to any question means that the server has passed the message on.
    std::free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  }

 private:
  xcb_connection_t* connection_;
};

}  // namespace

bool CloseX11Windows(const QString& title) {
  if (!qEnvironmentVariableIsSet("DISPLAY")) return false;
  const Display display;
  if (!display.Works()) return false;
  const QByteArray list = display.Property(display.Root(), display.Atom("_NET_CLIENT_LIST"));
  bool found = false;
  for (qsizetype at = 0; at + 4 <= list.size(); at += 4) {
    xcb_window_t window = 0;
    std::memcpy(&window, list.data() + at, sizeof window);
    if (display.Title(window) != title || display.IsOwn(window)) continue;
    display.Close(window);
    found = true;
  }
  return found;
}

}  // namespace morvane::platform

#else

namespace morvane::platform {

bool CloseX11Windows(const QString&) {
  return false;
}

}  // namespace morvane::platform

#endif
