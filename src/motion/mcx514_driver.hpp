// MCX514Driver: the MCX514 command layer.  Each operation is one register
// write, register read or chip command, travelling as one MOTION packet
// [port, code, axis byte, d0, d1, d2, d3]; the firmware performs the access
// and answers at the same positions.  Every operation is a row of
// motion/mcx514_registers.def, and one sender (mcx514Send) serves them all.
//
// The class also owns the motion records that MCX514Module composes with:
// the four axes, the three interpolation requests and the ini translation.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <type_traits>

#include "link/call.hpp"
#include "link/convert.hpp"
#include "link/value.hpp"
#include "models/module.hpp"
#include "motion/ini_file.hpp"
#include "motion/motion_axis.hpp"

namespace orv {

#define ORV_MCX514_CODE(hex, mnemonic) inline constexpr int MOTION_##hex##_##mnemonic = 0x##hex;
#include "motion/mcx514_codes.def"
#undef ORV_MCX514_CODE

// A chip command that nothing sends: the helical wait reads RR0 instead.
inline constexpr int CHECK_CALCULATUON = 185;

// How a row fills the packet and reads the reply (see mcx514_registers.def).
enum class McxForm : uint8_t { W32, W16, ACT, SW, PG, SP1, GPIO, PIO1 };
enum class McxAxis : uint8_t { OneHot, Chip, Raw };
enum class McxConv : uint8_t { None, U32, I32, U16, I16 };
enum class McxReply : uint8_t { Status, U32, I32, U16 };

struct McxOp {
  const char* name;  // as the host spells it
  int code;
  McxForm form;
  McxAxis axis;
  McxConv conv;
  McxReply reply;
  std::array<const char*, 3> args;  // after `port`
  size_t nargs;
};

namespace mcx514 {
// The row index of each operation, named as the C++ method.
enum Row : size_t {
#define ORV_MCX514_OP(Cpp, ...) Cpp,
#include "motion/mcx514_registers.def"
#undef ORV_MCX514_OP
  kRows
};
constexpr size_t countArgs(std::initializer_list<const char*> a) { return a.size(); }
}  // namespace mcx514

inline constexpr std::array<McxOp, mcx514::kRows> kMcx514Ops{{
#define ORV_MCX514_OP(Cpp, name, code, form, axis, conv, reply, ...) \
  McxOp{name,          code,                                         \
        McxForm::form, McxAxis::axis,                                \
        McxConv::conv, McxReply::reply,                              \
        {__VA_ARGS__}, mcx514::countArgs({__VA_ARGS__})},
#include "motion/mcx514_registers.def"
#undef ORV_MCX514_OP
}};

// What a row returns: a status (0 or a negative firmware code) or the value read.
template <size_t Row>
using McxResult = std::conditional_t<kMcx514Ops[Row].reply == McxReply::Status, int, int64_t>;

// The packet of a row, checked and converted; raises before anything is sent.
Bytes mcx514Packet(const McxOp& op, const Value& port, std::span<const Value> args);
// Sends a row's packet and returns its status or value.
int64_t mcx514Send(const Call& c, const McxOp& op, const Value& port, std::span<const Value> args);

// Linear interpolation request (two to four axes).
struct MotionLinearInterpolation {
  int64_t main_axis = 0, main_dest = 0;
  int64_t second_axis = 1, second_dest = 1;
  int64_t third_axis = 2, third_dest = 2;
  int64_t fourth_axis = 3, fourth_dest = 3;
  int64_t speed = 1000, acceleration = 10000, deceleration = 10000;
  int64_t mode = 2;
};

struct MotionCircularInterpolation {
  int64_t main_axis = 0, second_axis = 1;
  int64_t finish_point_x = 2, finish_point_y = 3;
  int64_t center_point_x = 0, center_point_y = 0;
  int64_t speed = 1000, acceleration = 10000, deceleration = 10000;
  int64_t direction = 0;
};

struct MotionHelicalInterpolation {
  int64_t finish_point_axis1 = 0, finish_point_axis2 = 0;
  int64_t center_point_axis1 = 0, center_point_axis2 = 0;
  int64_t circular_direction = 0, circular_speed = 0;
  int64_t enable_axis3 = 1, pitch_axis3 = 0;
  int64_t enable_axis4 = 0, pitch_axis4 = 0;
  int64_t rotation_number = 0;
  int64_t calculation_result = 0;
};

class MCX514Driver : public ModuleBase {
 public:
  MotionAxis axis_1, axis_2, axis_3, axis_4;
  MotionLinearInterpolation linear_interpo;
  MotionCircularInterpolation circular_interpo;
  MotionHelicalInterpolation helical_interpo;
  MotionInifile motion_ini;

  // One row: `args` are the row's arguments after `port`.
  template <size_t Row, class... A>
  McxResult<Row> run(const Call& c, const Value& port, const A&... args) {
    static_assert(sizeof...(A) == kMcx514Ops[Row].nargs, "argument count of the row");
    const Value list[] = {Value(args)..., Value()};
    const std::span<const Value> values(list, sizeof...(A));
    // The awaitable twin of the one public row takes a slot number on Trellis.
    if constexpr (Row == mcx514::Motion_setLogicalPosi)
      if (c.isAwaitable() && model().slot_ports)
        return static_cast<int>(mcx514Send(c, kMcx514Ops[Row], changeToTrellisPort(port), values));
    return static_cast<McxResult<Row>>(mcx514Send(c, kMcx514Ops[Row], port, values));
  }

  // The row as a method of fixed arity, for the bindings: V is const Value&.
  template <size_t Row, class... V>
  McxResult<Row> tableOp(const Call& c, const Value& port, V... args) {
    return run<Row>(c, port, args...);
  }

  // Every row by its name: Motion_setAcceleration_(c, port, axis, value).
#define ORV_MCX514_OP(Cpp, ...)                                                 \
  template <class... A>                                                         \
  McxResult<mcx514::Cpp> Cpp(const Call& c, const Value& port, const A&... a) { \
    return run<mcx514::Cpp>(c, port, a...);                                     \
  }
#include "motion/mcx514_registers.def"
#undef ORV_MCX514_OP

  // The record of an axis: 0 -> axis_1, 1 -> axis_2, 2 -> axis_3, else axis_4.
  MotionAxis& _getAxisHandle(int64_t axis);
};

}  // namespace orv
