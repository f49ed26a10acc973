#include "graph/catalogue.h"

#include "graph/catalogue_rows.h"

namespace tarnmill {

std::span<const CurveMenu> curve_catalogue() {
  static const std::array menus{
      CurveMenu{"mnucommon", u"FAQ - Common Functions", detail::common_functions()},
      CurveMenu{"gjhg", u"FAQ - Predefined Functions", detail::predefined_functions()},
      CurveMenu{"mnupower", u"FAQ - Use of Power  ^", detail::powers()},
      CurveMenu{"mnucomplex", u"Complex Functions 1", detail::first_complex_functions()},
      CurveMenu{"mnughdfkj", u"Complex Functions 2", detail::second_complex_functions()},
  };
  return menus;
}

}  // namespace tarnmill
