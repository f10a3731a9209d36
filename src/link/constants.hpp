// Link constants and the few command codes the link itself must know.
// Every module keeps its own command codes beside its operations.
#pragma once

#include <array>
#include <cstdint>

namespace orv {

// Framing.  The splitter uses the *_2 copies, the packet builder the others.
inline constexpr int CMD_STX = 2;
inline constexpr int CMD_CR = 13;
inline constexpr int CMD_LF = 10;
inline constexpr int CMD_INDEX = 3;
inline constexpr int CMD_STX_2 = CMD_STX;
inline constexpr int CMD_CR_2 = CMD_CR;
inline constexpr int CMD_LF_2 = CMD_LF;
inline constexpr int CMD_INDEX_2 = CMD_INDEX;

// USB.
inline constexpr int USB_VID = 1155;
inline constexpr int USB_PID = 22352;
inline constexpr int USB_EP_IN = 129;
inline constexpr int USB_EP_OUT = 1;
inline constexpr int USB_PKT_SIZE = 64;
inline constexpr int USB_61E_RECEIVE_BYTE = 2;
inline constexpr int USB_61E_RECEIVE_TIMEOUT = 200;
inline constexpr int USB_61E_RECEIVE_TOTAL_BYTES = 19;
inline constexpr int USB_61E_PLUS_VID = 4292;
inline constexpr int USB_61E_PLUS_PID = 60032;

// Network.
inline constexpr int TCP_CMD_PORT = 7;
inline constexpr int TCP_DATA_PORT = 1336;
inline constexpr int TCP_PKT_LENGTH_MAX = 1536;
inline constexpr int TCP_DATA_LENGTH_MAX = 9606;
inline constexpr int UDP_SEND_PORT = 61557;
inline constexpr int UDP_RECV_PORT = 6667;
inline constexpr int UDP_PKT_LENGTH_MAX = 512;

// Exchange timing (seconds) and queues.
inline constexpr double CONNECTION_TIMEOUT = 5;
inline constexpr double ECHO_DELAY = 0.01;
inline constexpr double PACKET_TIMEOUT = 5;
inline constexpr double RETRY_TIMEOUT = 1;
inline constexpr int NUM_RETRIES = 3;
inline constexpr int NUM_BCST_RETRIES = 3;
inline constexpr int QUEUE_SIZE_MAX = 1000000;
inline constexpr int QUEUE_TIMEOUT = 999999;

// Commands the link routes specially.
inline constexpr int GET_DRIVER_INFO = 240;
inline constexpr int MOTION = 208;
inline constexpr int OPEN_CAN = 48;
inline constexpr int START_CAN = 49;
inline constexpr int START_UART_READING = 129;
inline constexpr int START_AI_STREAMING = 183;
inline constexpr int START_AI_STREAMING_VARIABLE = 190;
inline constexpr int START_AO_STREAMING = 8265;
// The firmware's motion monitoring stream; no module starts it yet.
inline constexpr int START_MOTION_MONITORING = 7216;
inline constexpr int AHRS_START = 9217;
inline constexpr int GET_DEVICE_INFO = 252;
inline constexpr int CHECK_MAC_AND_SET_IP = 253;
inline constexpr int CHECK_MAC_AND_REBOOT = 254;

inline constexpr std::array<int, 7> STREAMING_CMD_LIST = {
    START_CAN,          START_UART_READING,      START_AI_STREAMING, START_AI_STREAMING_VARIABLE,
    START_AO_STREAMING, START_MOTION_MONITORING, AHRS_START};
inline constexpr std::array<int, 3> BROADCAST_CMD_LIST = {GET_DEVICE_INFO, CHECK_MAC_AND_SET_IP,
                                                          CHECK_MAC_AND_REBOOT};

}  // namespace orv
