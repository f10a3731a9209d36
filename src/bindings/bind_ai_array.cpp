// The array reads of AIModule: the decoded samples of a stream as rows of a
// (samples, values) float64 array, without a Python list per sample.
//
//   AI_readStreamingArray(port, num_samples, delay)  a new numpy array
//   AI_readStreamingInto(port, out, delay)           fills rows of `out`
//
// numpy stays optional: it is imported by the first AI_readStreamingArray,
// and AI_readStreamingInto takes any writable C-contiguous 2-D buffer of
// doubles (a numpy array, a memoryview cast to 2-D).  Both release the GIL
// while they wait and copy the samples into the rows there; the awaitable
// twins park their fiber like AI_readStreaming_async.
#include <pybind11/numpy.h>

#include <memory>
#include <optional>
#include <string>

#include "analog/ai.hpp"
#include "bindings/bindings.hpp"
#include "bindings/twin_def.hpp"

namespace orv::py_bind {

namespace {

using A = AIModule;
constexpr const char* kArray = "numpy.typing.NDArray[numpy.float64]";
const Arg kPort{"port", kInt, "AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)"};
const Arg kDelay{"delay", kFloat, "seconds to wait for the samples", "0.005"};
constexpr const char* kPortRefused =
    "InputTypeNotCorrectError: port is not an int.\n"
    "AIPortNotAvaliableError: port is not a key of ai_dict.";

void needNumpy() {
  try {
    py::module_::import("numpy");
  } catch (py::error_already_set& e) {
    if (!e.matches(PyExc_ImportError)) throw;
    throw py::import_error(
        "AI_readStreamingArray needs numpy (pip install numpy); AI_readStreaming and "
        "AI_readStreamingInto work without it");
  }
}

// The block as a (samples, width) array that owns its values.
py::object toArray(AiBlock&& b) {
  const auto rows = static_cast<py::ssize_t>(b.samples);
  const auto width = static_cast<py::ssize_t>(b.width);
  if (rows == 0) return py::array_t<double>({rows, width});
  auto* values = new std::vector<double>(std::move(b.values));
  py::capsule owner(values, [](void* p) { delete static_cast<std::vector<double>*>(p); });
  const py::ssize_t item = sizeof(double);
  return py::array_t<double>({rows, width}, {width * item, item}, values->data(), owner);
}

// `out` checked as rows of the port's samples; the view is held (and the
// buffer kept from being resized) until the read ends.
struct OutRows {
  py::buffer_info view;
  size_t rows = 0, width = 0;
  double* data() { return static_cast<double*>(view.ptr); }
};

std::shared_ptr<OutRows> outRows(A& self, const Value& port, const py::buffer& out) {
  const size_t width = self.AI_sampleWidth(port);
  auto rows = std::make_shared<OutRows>();
  rows->view = out.request(true);
  const py::buffer_info& v = rows->view;
  if (!v.item_type_is_equivalent_to<double>())
    throw py::type_error("out must hold float64 values (numpy dtype float64), not buffer format '" +
                         v.format + "'");
  const std::string want = "(samples, " + std::to_string(width) + ")";
  if (v.ndim != 2 || v.shape[1] != static_cast<py::ssize_t>(width)) {
    std::string shape = "(";
    for (py::ssize_t i = 0; i < v.ndim; ++i)
      shape += (i ? ", " : "") + std::to_string(v.shape[static_cast<size_t>(i)]);
    if (v.ndim == 1) shape += ",";
    throw py::value_error("out must have the shape " + want + " of this port's samples, not " +
                          shape + ")");
  }
  const auto item = static_cast<py::ssize_t>(sizeof(double));
  if (v.strides[1] != item || (v.shape[0] > 1 && v.strides[0] != item * v.shape[1]))
    throw py::value_error("out must be C-contiguous (rows of " + std::to_string(width) +
                          " adjacent float64 values)");
  rows->rows = static_cast<size_t>(v.shape[0]);
  rows->width = width;
  return rows;
}

Call blockingCall(A& self) { return Call(self.device(), Call::Flavour::Blocking, 3.0); }

}  // namespace

void bindAIArrays(py::class_<AIModule, std::shared_ptr<AIModule>>& cls) {
  py::options opts;
  opts.disable_function_signatures();

  const Op array{"AI_readStreamingArray",
                 "Takes decoded samples as one float64 array, waiting as AI_readStreaming does.",
                 {kPort, {"num_samples", kInt, "samples wanted"}, kDelay},
                 {kArray,
                  "shape (samples, values): one row per sample, the values AI_readStreaming gives "
                  "it; fewer rows than asked when delay ran out"},
                 "ImportError: numpy is not installed.\n"
                 "InputTypeNotCorrectError: port is not an int.\n"
                 "AIPortNotAvaliableError: port is not a key of ai_dict."};
  cls.def(
      array.name,
      [](A& self, const Value& port, int64_t num_samples, double delay) {
        needNumpy();
        std::optional<AiBlock> b;
        {
          py::gil_scoped_release rel;
          b.emplace(self.AI_readStreamingBlock(blockingCall(self), port, num_samples, delay));
        }
        return toArray(std::move(*b));
      },
      py::arg("port"), py::arg("num_samples"), py::arg("delay") = 0.005,
      py::doc(blockingDoc(array, false).c_str()));
  cls.def(
      asyncName(array).c_str(),
      [](py::object self_obj, const Value& port, int64_t num_samples, double delay) {
        needNumpy();
        A& self = self_obj.cast<A&>();
        return makeCoroutine(self_obj, [&self, port, num_samples, delay](CancelToken* tok) {
          Call c(self.device(), Call::Flavour::Awaitable, PACKET_TIMEOUT, tok);
          auto b =
              std::make_shared<AiBlock>(self.AI_readStreamingBlock(c, port, num_samples, delay));
          return std::function<py::object()>([b] { return toArray(std::move(*b)); });
        });
      },
      py::arg("port"), py::arg("num_samples"), py::arg("delay") = 0.005,
      py::doc(awaitableDoc(array).c_str()));

  const Op into{"AI_readStreamingInto",
                "Fills rows of a preallocated float64 array with decoded samples, waiting until "
                "every row can be filled or delay passed.",
                {kPort,
                 {"out", kArray,
                  "writable, C-contiguous, shape (rows, values per sample): values is "
                  "ai_num_channels (times the enabled chip selects on Trellis)"},
                 kDelay},
                {kInt, "samples written, rows 0 to n-1 of out; the rest of out is left as it was"},
                "InputTypeNotCorrectError: port is not an int.\n"
                "AIPortNotAvaliableError: port is not a key of ai_dict.\n"
                "TypeError: out does not hold float64 values.\n"
                "ValueError: out is not 2-D with a row per sample, or not C-contiguous.\n"
                "BufferError: out is read-only."};
  cls.def(
      into.name,
      [](A& self, const Value& port, const py::buffer& out, double delay) {
        auto rows = outRows(self, port, out);
        size_t n = 0;
        {
          py::gil_scoped_release rel;
          n = self.AI_readStreamingInto(blockingCall(self), port, rows->data(), rows->rows,
                                        rows->width, delay);
        }
        return n;
      },
      py::arg("port"), py::arg("out"), py::arg("delay") = 0.005,
      py::doc(blockingDoc(into, false).c_str()));
  cls.def(
      asyncName(into).c_str(),
      [](py::object self_obj, const Value& port, const py::buffer& out, double delay) {
        A& self = self_obj.cast<A&>();
        auto rows = outRows(self, port, out);
        return makeCoroutine(self_obj, [&self, port, rows, delay](CancelToken* tok) {
          Call c(self.device(), Call::Flavour::Awaitable, PACKET_TIMEOUT, tok);
          const size_t n =
              self.AI_readStreamingInto(c, port, rows->data(), rows->rows, rows->width, delay);
          return std::function<py::object()>([n, rows] { return py::object(py::int_(n)); });
        });
      },
      py::arg("port"), py::arg("out"), py::arg("delay") = 0.005,
      py::doc(awaitableDoc(into).c_str()));

  const Op dropped{"AI_getReadDropped",
                   "Samples of the port that the decoder dropped on a full queue between the "
                   "port's previous stream read and its latest one (any of the read methods); "
                   "nothing is sent.",
                   {kPort},
                   {kInt,
                    "0 when none were lost or before the first read; on Trellis the most "
                    "that any enabled chip select lost"},
                   kPortRefused};
  cls.def(
      dropped.name, [](A& self, const Value& port) { return self.AI_getReadDropped(port); },
      py::arg("port"), py::doc(blockingDoc(dropped, false).c_str()));
  cls.def(
      asyncName(dropped).c_str(),
      [](A& self, const Value& port) {
        const uint64_t n = self.AI_getReadDropped(port);
        return immediateCoroutine([n] { return py::object(py::int_(n)); });
      },
      py::arg("port"), py::doc(awaitableDoc(dropped).c_str()));
  cls.def(
      "_AI_sampleWidth", [](A& self, const Value& port) { return self.AI_sampleWidth(port); },
      py::arg("port"),
      "_AI_sampleWidth(self, port: int) -> int\n\nValues per sample of the port now: the column "
      "count of an array read.");
}

}  // namespace orv::py_bind
