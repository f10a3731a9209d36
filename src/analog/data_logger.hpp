// DataLogger: rows of values written to a CSV file by a writer thread of its
// own, so that an acquisition loop never waits for the disk.
//
// The thread (save_data_thread) starts with the object and stands at a gate
// until Logger_openFile opens a file; it then takes entries (each a list of
// rows) from an unbounded queue as they come, sleeping on the queue while it
// is empty.  _Logger_close closes the file, marks the logger killed and opens
// the gate, so the thread runs out; it cannot be restarted.  Rows put in the
// queue before a file is open wait there; rows still queued when the file
// closes are lost.
#pragma once

#include <condition_variable>
#include <cstdio>
#include <deque>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "analog/csv_text.hpp"
#include "models/module.hpp"

namespace orv {

class DataLogger : public ModuleBase {
 public:
  DataLogger();
  ~DataLogger() override;
  DataLogger(const DataLogger&) = delete;
  DataLogger& operator=(const DataLogger&) = delete;

  // Opens (clear_old: truncates, else appends to) the file and opens the
  // gate; an OSError when the file cannot be opened.
  int Logger_openFile(const std::string& filename, bool clear_old = true, bool verbose = true);
  // Puts an entry into the queue; an empty one writes nothing.
  int Logger_write2DList(std::vector<CsvRow> value_mat);
  int Logger_writeList(CsvRow value_list);
  int Logger_writeValue(CsvField value);
  int Logger_close_(bool verbose = true);
  // The model's close frees the logger after the device's.
  void closeModule() noexcept override;

  bool loggerKilled() const;
  std::string filename() const;
  bool fileOpen() const;
  size_t queued() const;
  // The writer thread's native id (0 once it has ended).
  long threadId() const;
  // Waits until the writer has written every entry queued so far (or has
  // ended); true when the queue is empty.
  bool flush(double timeout_s);

  static constexpr double queue_timeout = 999999;

 private:
  void run();

  mutable std::mutex m_;
  std::condition_variable cv_;       // the writer waits here for the gate or an entry
  std::condition_variable drained_;  // flush waits here
  bool gate_open_ = false;
  bool killed_ = false;
  bool writing_ = false;
  bool ended_ = false;
  std::deque<std::vector<CsvRow>> queue_;
  std::string filename_;
  long tid_ = 0;

  std::mutex file_m_;  // the file, between the writer and close
  std::FILE* f_handle_ = nullptr;

  std::mutex join_m_;  // one joiner at a time (a user's close and the model's)
  std::thread save_data_thread_;
};
ORV_MODULE_CLASS("DataLogger", DataLogger);

// A DataLogger of its own, outside any model.
class PlainDataLogger final : public DataLogger {
 public:
  Device& device() override;
  const ModelInfo& model() const override;

 protected:
  void* siblingOf(const std::type_info&) override { return nullptr; }
};

}  // namespace orv
