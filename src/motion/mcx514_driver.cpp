#include "motion/mcx514_driver.hpp"

#include <cmath>
#include <string>

#include "link/constants.hpp"
#include "link/convert.hpp"

namespace orv {

namespace {

// One payload byte as the caller gives it: an int (bools count) in 0..255.
uint8_t byteOf(const Value& v) {
  if (!v.isInt())
    throw TypeError("'" + std::string(v.typeName()) +
                    "' object cannot be interpreted as an integer");
  const int64_t i = v.asInt();
  if (i < 0 || i > 255) throw ValueError("bytes must be in range(0, 256)");
  return static_cast<uint8_t>(i);
}

// int(pow(2, axis)) in floating point: axis 0..3 gives 1, 2, 4, 8.
uint8_t oneHot(const Value& axis) {
  if (!axis.isNumber())
    throw TypeError("unsupported operand type(s) for ** or pow(): 'int' and '" +
                    std::string(axis.typeName()) + "'");
  const double mask = std::trunc(std::pow(2.0, axis.asFloat()));
  if (!std::isfinite(mask)) throw ValueError("cannot convert float infinity to integer");
  if (mask > 255) throw ValueError("bytes must be in range(0, 256)");
  return static_cast<uint8_t>(mask);
}

// The value brought to the row's width; a value that does not fit the width
// fails here, before anything is sent.
struct Width {
  int bits;
  bool is_signed;
  const char* format;
};
Width widthOf(McxConv conv) {
  switch (conv) {
    case McxConv::U32:
      return {32, false, "I"};
    case McxConv::I32:
      return {32, true, "i"};
    case McxConv::U16:
      return {16, false, "H"};
    case McxConv::I16:
      return {16, true, "h"};
    case McxConv::None:
      break;
  }
  return {0, false, ""};
}

Bytes packValue(McxConv conv, const Value& v) {
  const Width w = widthOf(conv);
  if (!v.isNumber()) throw TypeError("required argument is not an integer");
  // Floats are truncated toward zero, as the integer rows take them.
  double d = v.isFloat() ? std::trunc(v.asFloat()) : 0.0;
  if (v.isFloat() && !std::isfinite(d)) throw ValueError("cannot convert float to integer");
  const int64_t lo = w.is_signed ? -(int64_t{1} << (w.bits - 1)) : 0;
  const int64_t hi = w.is_signed ? (int64_t{1} << (w.bits - 1)) - 1 : (int64_t{1} << w.bits) - 1;
  const bool fits = v.isFloat() ? (d >= static_cast<double>(lo) && d <= static_cast<double>(hi))
                                : (v.asInt() >= lo && v.asInt() <= hi);
  if (!fits)
    throw ValueError("'" + std::string(w.format) + "' format requires " + std::to_string(lo) +
                     " <= number <= " + std::to_string(hi));
  switch (conv) {
    case McxConv::U32:
      return convertU32To4U8(v);
    case McxConv::I32:
      return convertI32To4U8(v);
    case McxConv::U16:
      return convertU16To2U8(v);
    case McxConv::I16:
      return convertI16To2U8(v);
    case McxConv::None:
      break;
  }
  return {};
}

}  // namespace

Bytes mcx514Packet(const McxOp& op, const Value& port, std::span<const Value> args) {
  size_t next = 0;
  auto arg = [&]() -> const Value& { return args[next++]; };
  uint8_t axis_byte = 0;
  if (op.axis == McxAxis::OneHot) axis_byte = oneHot(arg());
  if (op.axis == McxAxis::Raw) axis_byte = byteOf(arg());

  Bytes data;
  switch (op.form) {
    case McxForm::W32:
      data = packValue(op.conv, arg());
      break;
    case McxForm::W16: {
      data = {0, 0};
      const Bytes w = packValue(op.conv, arg());
      data.insert(data.end(), w.begin(), w.end());
      break;
    }
    case McxForm::ACT:
      data = {0, 0, 0, 0};
      break;
    case McxForm::SW:
    case McxForm::PG:
      data = {0, 0, 0, byteOf(arg())};
      break;
    case McxForm::SP1: {
      data = packValue(op.conv, arg());
      const Bytes period = packValue(op.conv, arg());
      data.insert(data.end(), period.begin(), period.end());
      break;
    }
    case McxForm::GPIO: {
      const uint8_t mask = byteOf(arg());
      data = {0, 0, mask, byteOf(arg())};
      break;
    }
    case McxForm::PIO1:
      data = {0, 0, 0x55, 0x05};  // the state argument is not sent
      break;
  }
  Bytes out{byteOf(port), static_cast<uint8_t>(op.code), axis_byte};
  out.insert(out.end(), data.begin(), data.end());
  return out;
}

int64_t mcx514Send(const Call& c, const McxOp& op, const Value& port, std::span<const Value> args) {
  // Releasing a held start first checks the axis mask with an axis check
  // that this version of the chip layer does not have: the call ends there,
  // before any packet.
  if (op.code == MOTION_78_DFREE)
    throw AttributeError("'" + c.device().className() +
                         "' object has no attribute '_checkMotionAxis'");
  const Bytes data_out = mcx514Packet(op, port, args);
  const Bytes data_in = c.exchange(MOTION, data_out);
  auto need = [&](size_t n) {
    if (data_in.size() < n)
      raise(ErrorId::ReplyFormatError, "The MOTION reply of code " + std::to_string(op.code) +
                                           " holds " + std::to_string(data_in.size()) + " bytes, " +
                                           std::to_string(n) + " expected.");
  };
  const auto at = [&](size_t from, size_t n) { return std::span(data_in).subspan(from, n); };
  switch (op.reply) {
    case McxReply::Status:
      need(7);
      try {
        return checkFirmwareError(data_in[6]);
      } catch (const Error& e) {
        return e.code();
      }
    case McxReply::U32:
      need(7);
      return convert4U8ToU32(at(3, 4));
    case McxReply::I32:
      need(7);
      return convert4U8ToI32(at(3, 4));
    case McxReply::U16:
      need(7);
      return convert2U8ToU16(at(5, 2));
  }
  return 0;
}

MotionAxis& MCX514Driver::_getAxisHandle(int64_t axis) {
  switch (axis) {
    case 0:
      return axis_1;
    case 1:
      return axis_2;
    case 2:
      return axis_3;
    default:
      return axis_4;
  }
}

}  // namespace orv
