#include "platform/MessageBox.h"

#include <utility>

namespace folivant::platform {
namespace {

struct Route {
  std::function<void(const std::wstring& text)> Listener;
  std::function<bool()> MayShow;
};

Route& CurrentRoute() {
  static Route route;
  return route;
}

BoxAnswer HarmlessAnswer(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::Ok:
      return BoxAnswer::Ok;
    case BoxButtons::YesNo:
      return BoxAnswer::No;
    case BoxButtons::YesNoCancel:
      break;
  }
  return BoxAnswer::Cancel;
}

}  // namespace

MessageRoute::MessageRoute(std::function<void(const std::wstring& text)> listener, std::function<bool()> mayShow) {
  CurrentRoute() = {std::move(listener), std::move(mayShow)};
}

MessageRoute::~MessageRoute() {
  CurrentRoute() = {};
}

BoxAnswer ShowMessage(const std::wstring& text, BoxIcon icon, BoxButtons buttons, BoxDefault preset) {
  const Route& route = CurrentRoute();
  if (route.Listener) {
    route.Listener(text);
  }
  if (!route.MayShow || route.MayShow()) {
    if (const std::optional<BoxAnswer> answer = ShowBox(text, icon, buttons, preset)) {
      return *answer;
    }
  }
  WriteStandardError(text);
  return HarmlessAnswer(buttons);
}

}  // namespace folivant::platform
