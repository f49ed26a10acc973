#include <array>
#include <cmath>
#include <limits>

#include "complex/operations.h"
#include "forms/workbench.h"
#include "script/lua_engine.h"
#include "script/lua_table.h"
#include "script/lua_value.h"
#include "script/session.h"

namespace tarnmill {

namespace {

// No operation gives this value, so an output that still has it was not written.
constexpr double unwritten = std::numeric_limits<double>::quiet_NaN();

void push_output(lua_State* state, double output) {
  if (std::isnan(output)) {
    lua_pushnil(state);
  } else {
    push_number(state, output);
  }
}

/// Runs `computation` with a sink for its messages.
template <class Computation>
void compute(lua_State* state, Computation&& computation) {
  Workbench& bench = Session::of(state).bench();
  Session::of(state).call(state,
                          [&] { computation([&bench](const MessageBox& box) { bench.message(box); }); });
}

int run(lua_State* state, ComplexOperation operation, const ComplexOperands& z) {
  double re = unwritten;
  double im = unwritten;
  compute(state, [&](const MessageSink& show) { operation(z, re, im, show); });
  push_output(state, re);
  push_output(state, im);
  return 2;
}

template <auto function>
int on_two(lua_State* state) {
  return run(state, of_two<function>,
             {number_at(state, 1), number_at(state, 2), number_at(state, 3), number_at(state, 4)});
}

template <auto function>
int on_one(lua_State* state) {
  return run(state, of_one<function>, {number_at(state, 1), number_at(state, 2), 0, 0});
}

int complex_abs(lua_State* state) {
  const double a = number_at(state, 1);
  const double b = number_at(state, 2);
  double result = unwritten;
  compute(state, [&](const MessageSink& /*show*/) { ComplexAbs(a, b, result); });
  push_output(state, result);
  return 1;
}

/// The degrees come as text, as the operation gives them.
int complex_arg_deg(lua_State* state) {
  const double a = number_at(state, 1);
  const double b = number_at(state, 2);
  Text degrees;
  double im = unwritten;
  const Regional& regional = Session::of(state).desk().regional();
  compute(state, [&](const MessageSink& show) { ComplexArgDeg(a, b, degrees, im, regional, show); });
  if (degrees.empty()) {
    lua_pushnil(state);
  } else {
    push_text(state, degrees);
  }
  push_output(state, im);
  return 2;
}

}  // namespace

void set_complex_global(lua_State* state) {
  static constexpr std::array operations{luaL_Reg{"ComplexAdd", on_two<ComplexAdd>},
                                         luaL_Reg{"ComplexSubtract", on_two<ComplexSubtract>},
                                         luaL_Reg{"ComplexMultiply", on_two<ComplexMultiply>},
                                         luaL_Reg{"ComplexDivide", on_two<ComplexDivide>},
                                         luaL_Reg{"ComplexAbs", complex_abs},
                                         luaL_Reg{"ComplexExp", on_one<ComplexExp>},
                                         luaL_Reg{"ComplexLn", on_one<ComplexLn>},
                                         luaL_Reg{"ComplexPower", on_two<ComplexPower>},
                                         luaL_Reg{"ComplexLog", on_two<ComplexLog>},
                                         luaL_Reg{"ComplexSin", on_one<ComplexSin>},
                                         luaL_Reg{"ComplexCos", on_one<ComplexCos>},
                                         luaL_Reg{"ComplexTan", on_one<ComplexTan>},
                                         luaL_Reg{"ComplexSinh", on_one<ComplexSinh>},
                                         luaL_Reg{"ComplexCosh", on_one<ComplexCosh>},
                                         luaL_Reg{"ComplexTanh", on_one<ComplexTanh>},
                                         luaL_Reg{"ComplexReciprocal", on_one<ComplexReciprocal>},
                                         luaL_Reg{"ComplexArgRad", on_one<ComplexArgRad>},
                                         luaL_Reg{"ComplexArgDeg", complex_arg_deg}};
  push_functions(state, operations);
  lua_setglobal(state, "Complex");
}

}  // namespace tarnmill
