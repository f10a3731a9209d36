// orv-sim: runs simulated devices until SIGINT or SIGTERM.
//
//   orv-sim [--model NAME] [--link eth|wifi|usb] [--host 127.0.0.1] [--port N]
//           [--data-port N] [--serial S] [--count K] [--discovery]
//           [--discovery-port N] [--reply-port N] [--allow-external]
//           [--firmware 127.0.0.1:PORT]
//
// --port and --data-port give the first device's ports (0: ephemeral); the
// following devices take the next ones.  One line per device says how to
// reach it.
#include <signal.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>

#include "sim/simulator.hpp"

namespace {

void usage(FILE* out) {
  std::fputs(
      "usage: orv-sim [--model NAME] [--link eth|wifi|usb] [--host ADDR] [--port N]\n"
      "               [--data-port N] [--serial S] [--count K] [--discovery]\n"
      "               [--discovery-port N] [--reply-port N] [--allow-external]\n"
      "               [--firmware 127.0.0.1:PORT]\n",
      out);
}

bool toInt(const char* s, int lo, int hi, int* out) {
  char* end = nullptr;
  const long v = std::strtol(s, &end, 10);
  if (!end || *end || end == s || v < lo || v > hi) return false;
  *out = static_cast<int>(v);
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace orv::sim;
  std::string model = "Trellis";
  Link link = Link::Ethernet;
  std::string host = "127.0.0.1";
  std::string serial;
  std::string firmware;  // a TCP peer on loopback that answers for every device
  int port = 0, data_port = 0, count = 1;
  int discovery_port = orv::UDP_SEND_PORT, reply_port = orv::UDP_RECV_PORT;
  bool discovery = false, allow_external = false;

  for (int i = 1; i < argc; ++i) {
    const std::string_view a = argv[i];
    auto value = [&]() -> const char* {
      if (i + 1 >= argc) {
        std::fprintf(stderr, "orv-sim: %s needs a value\n", argv[i]);
        std::exit(2);
      }
      return argv[++i];
    };
    auto number = [&](int lo, int hi) {
      const char* name = argv[i];
      int v = 0;
      if (!toInt(value(), lo, hi, &v)) {
        std::fprintf(stderr, "orv-sim: bad value for %s\n", name);
        std::exit(2);
      }
      return v;
    };
    if (a == "--model") {
      model = value();
    } else if (a == "--link") {
      const auto l = parseLink(value());
      if (!l) {
        std::fprintf(stderr, "orv-sim: --link must be eth, wifi or usb\n");
        return 2;
      }
      link = *l;
    } else if (a == "--host") {
      host = value();
    } else if (a == "--port") {
      port = number(0, 65535);
    } else if (a == "--data-port") {
      data_port = number(0, 65535);
    } else if (a == "--serial") {
      serial = value();
    } else if (a == "--count") {
      count = number(1, 255);
    } else if (a == "--discovery") {
      discovery = true;
    } else if (a == "--discovery-port") {
      discovery_port = number(0, 65535);
    } else if (a == "--reply-port") {
      reply_port = number(0, 65535);
    } else if (a == "--firmware") {
      firmware = value();
    } else if (a == "--allow-external") {
      allow_external = true;
    } else if (a == "-h" || a == "--help") {
      usage(stdout);
      return 0;
    } else {
      std::fprintf(stderr, "orv-sim: unknown argument %s\n", argv[i]);
      usage(stderr);
      return 2;
    }
  }
  if (!allow_external && !isLoopbackHost(host)) {
    std::fprintf(stderr,
                 "orv-sim: refusing to listen on %s, which is not a loopback address "
                 "(use --allow-external to do so)\n",
                 host.c_str());
    return 2;
  }

  // The signals are taken by sigwait below; every thread inherits the mask.
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);

  Simulator sim;
  try {
    for (int i = 0; i < count; ++i) {
      DeviceConfig cfg = numberedConfig(model, link, i + 1);
      cfg.host = host;
      cfg.firmware = firmware;
      if (!serial.empty()) cfg.serial = count == 1 ? serial : serial + std::to_string(i + 1);
      if (port) cfg.cmd_port = port + (link == Link::Wifi ? 2 * i : i);
      if (link == Link::Wifi) {
        cfg.data_port = data_port ? data_port + 2 * i : (port ? port + 2 * i + 1 : 0);
      }
      SimDevice& dev = sim.addDevice(cfg);
      switch (link) {
        case Link::Ethernet:
          std::printf("%s eth %s cmd_port=%d serial=%s mac=%s\n", dev.model().c_str(), host.c_str(),
                      dev.cmdPort(), dev.serial().c_str(), cfg.mac.c_str());
          break;
        case Link::Wifi:
          std::printf("%s wifi %s cmd_port=%d data_port=%d serial=%s mac=%s\n", dev.model().c_str(),
                      host.c_str(), dev.cmdPort(), dev.dataPort(), dev.serial().c_str(),
                      cfg.mac.c_str());
          break;
        case Link::Usb:
          std::printf("%s usb (in-process virtual device) serial=%s\n", dev.model().c_str(),
                      dev.serial().c_str());
          break;
      }
    }
    if (discovery) {
      const int p = sim.startDiscovery(host, discovery_port, reply_port);
      if (reply_port) {
        std::printf("discovery udp %s:%d answers to port %d\n", host.c_str(), p, reply_port);
      } else {
        std::printf("discovery udp %s:%d answers to the sender's port\n", host.c_str(), p);
      }
    }
  } catch (const std::exception& e) {
    std::fprintf(stderr, "orv-sim: %s\n", e.what());
    return 1;
  }
  std::fflush(stdout);

  int sig = 0;
  while (sigwait(&signals, &sig) != 0) {
  }
  sim.stop();
  std::printf("orv-sim: stopped (%s)\n", sig == SIGINT ? "SIGINT" : "SIGTERM");
  return 0;
}
