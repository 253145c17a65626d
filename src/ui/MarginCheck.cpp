#include "ui/MarginCheck.h"

#include "base/mdlFileRoutines.h"

namespace folivant {
namespace {

float Raised(float margin, float minimum, double step) {
  return margin >= minimum ? margin : static_cast<float>(RoundToStep(static_cast<double>(minimum), step, Rounding::Up));
}

}  // namespace

bool MarginsSuffice(const Margins& margins, const Margins& minimum) {
  return margins.Left >= minimum.Left && margins.Top >= minimum.Top && margins.Right >= minimum.Right &&
         margins.Bottom >= minimum.Bottom;
}

Margins RaisedMargins(const Margins& margins, const Margins& minimum, bool inches) {
  const double step = inches ? 0.01 : 1.0;
  return {.Left = Raised(margins.Left, minimum.Left, step),
          .Top = Raised(margins.Top, minimum.Top, step),
          .Right = Raised(margins.Right, minimum.Right, step),
          .Bottom = Raised(margins.Bottom, minimum.Bottom, step)};
}

}  // namespace folivant
