#include "analog/data_logger.hpp"

#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>

#include "link/device.hpp"
#include "link/error.hpp"
#include "link/report.hpp"

namespace orv {

DataLogger::DataLogger() : save_data_thread_([this] { run(); }) {}

DataLogger::~DataLogger() { closeModule(); }

void DataLogger::run() {
  {
    std::lock_guard lk(m_);
    tid_ = static_cast<long>(::syscall(SYS_gettid));
  }
  std::unique_lock lk(m_);
  while (true) {
    // The gate stands closed until a file is open; the queue is waited on,
    // never polled.
    cv_.wait(lk, [&] { return killed_ || (gate_open_ && !queue_.empty()); });
    if (killed_) break;
    std::vector<CsvRow> entry = std::move(queue_.front());
    queue_.pop_front();
    if (entry.empty()) continue;
    writing_ = true;
    lk.unlock();
    std::string text;
    for (const CsvRow& row : entry) text += csvRow(row);
    {
      std::lock_guard fl(file_m_);
      // A file closed meanwhile: the entry is lost.
      if (f_handle_) {
        std::fwrite(text.data(), 1, text.size(), f_handle_);
        std::fflush(f_handle_);
      }
    }
    lk.lock();
    writing_ = false;
    drained_.notify_all();
  }
  tid_ = 0;
  ended_ = true;
  writing_ = false;
  drained_.notify_all();
}

int DataLogger::Logger_openFile(const std::string& filename, bool clear_old, bool verbose) {
  {
    std::lock_guard lk(m_);
    filename_ = filename;
  }
  std::FILE* f = std::fopen(filename.c_str(), clear_old ? "wb" : "ab");
  if (!f) {
    const int err = errno;
    throw OSError(err, std::string(std::strerror(err)) + ": '" + filename + "'");
  }
  {
    std::lock_guard fl(file_m_);
    // A second open takes the new file in place of the first (closed here).
    if (f_handle_) std::fclose(f_handle_);
    f_handle_ = f;
  }
  {
    std::lock_guard lk(m_);
    // The gate is a plain lock released once: opening again (or after a
    // close) releases it a second time, which fails after the new file is in
    // place and before anything is printed.
    if (gate_open_) throw GateAlreadyOpen("release unlocked lock");
    gate_open_ = true;
  }
  cv_.notify_all();
  if (verbose) report::print("Opened file name: (" + filename + ")");
  return 0;
}

int DataLogger::Logger_write2DList(std::vector<CsvRow> value_mat) {
  {
    std::lock_guard lk(m_);
    queue_.push_back(std::move(value_mat));
  }
  cv_.notify_all();
  return 0;
}

int DataLogger::Logger_writeList(CsvRow value_list) {
  std::vector<CsvRow> mat;
  mat.push_back(std::move(value_list));
  return Logger_write2DList(std::move(mat));
}

int DataLogger::Logger_writeValue(CsvField value) {
  return Logger_writeList(CsvRow{std::move(value)});
}

int DataLogger::Logger_close_(bool) {
  {
    std::lock_guard fl(file_m_);
    if (f_handle_) std::fclose(f_handle_);
    f_handle_ = nullptr;
  }
  {
    std::lock_guard lk(m_);
    killed_ = true;
    gate_open_ = true;
  }
  cv_.notify_all();
  // The writer runs out at once: it holds no entry across the close.
  std::lock_guard jl(join_m_);
  if (save_data_thread_.joinable() && save_data_thread_.get_id() != std::this_thread::get_id())
    save_data_thread_.join();
  return 0;
}

void DataLogger::closeModule() noexcept { Logger_close_(false); }

bool DataLogger::loggerKilled() const {
  std::lock_guard lk(m_);
  return killed_;
}

std::string DataLogger::filename() const {
  std::lock_guard lk(m_);
  return filename_;
}

bool DataLogger::fileOpen() const {
  std::lock_guard fl(const_cast<std::mutex&>(file_m_));
  return f_handle_ != nullptr;
}

size_t DataLogger::queued() const {
  std::lock_guard lk(m_);
  return queue_.size();
}

long DataLogger::threadId() const {
  std::lock_guard lk(m_);
  return tid_;
}

bool DataLogger::flush(double timeout_s) {
  std::unique_lock lk(m_);
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::duration<double>(timeout_s);
  drained_.wait_until(lk, deadline, [&] {
    return ended_ || (queue_.empty() && !writing_) || (!gate_open_ && !writing_);
  });
  return queue_.empty();
}

Device& PlainDataLogger::device() { throw TypeError("a DataLogger of its own has no device"); }

const ModelInfo& PlainDataLogger::model() const { return modelInfo("DataLogger"); }

}  // namespace orv
