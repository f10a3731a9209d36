"""
ORV Python driver: the compiled core
"""
from __future__ import annotations
import typing
from . import _sim
__all__: list[str] = ['AHRSModeNotAvaliableError', 'AHRSPortNotAvaliableError', 'AHRSQueueOverflowWarning', 'AHRS_START', 'AICSNotAvaliableError', 'AIChannelNotAvaliableError', 'AIModeNotAvaliableError', 'AIPortNotAvaliableError', 'AIQueueOverflowWarning', 'AIRateNotVaildError', 'AOChannelNotAvaliableError', 'AOFormNotAvaliableError', 'AOModeNotVaildError', 'AOPortNotAvaliableError', 'AORateNotVaildError', 'AOSpanNotVaildError', 'APINotSupportError', 'BROADCAST_CMD_LIST', 'BroadcastDevice', 'BroadcastModule', 'CANDataLengthNotVaildError', 'CANPortNotAvaliableError', 'CANQueueOverflowWarning', 'CANSpeedNotVaildError', 'CANTXNotVaildError', 'CANTXPriorityNotVaildError', 'CHECK_MAC_AND_REBOOT', 'CHECK_MAC_AND_SET_IP', 'CMD_CR', 'CMD_CR_2', 'CMD_INDEX', 'CMD_INDEX_2', 'CMD_LF', 'CMD_LF_2', 'CMD_STX', 'CMD_STX_2', 'CONNECTION_TIMEOUT', 'Client', 'CounterChannelNotAvaliableError', 'CounterModule', 'DIOModule', 'DIPortNotAvaliableError', 'DOPortNotAvaliableError', 'DPOTChannelNotAvaliableError', 'DPOTModule', 'DPOTPortNotAvaliableError', 'Device', 'DeviceClosedError', 'DeviceFinder', 'ECHO_DELAY', 'ETHDevice', 'Error', 'ExtLibNotFoundWarning', 'FirmwareAIError', 'FirmwareAOError', 'FirmwareBootloaderError', 'FirmwareCANError', 'FirmwareCoreError', 'FirmwareDIOError', 'FirmwareDriveError', 'FirmwareEEPROMError', 'FirmwareEnableError', 'FirmwareEncoderError', 'FirmwareHALIndexError', 'FirmwareI2CError', 'FirmwareMotionError', 'FirmwareOLEDError', 'FirmwareORVIndexError', 'FirmwareOtherError', 'FirmwarePWMError', 'FirmwareParserError', 'FirmwarePinIndexError', 'FirmwarePulseError', 'FirmwareRTCError', 'FirmwareRelayError', 'FirmwareSPIError', 'FirmwareTCPError', 'FirmwareTIMError', 'FirmwareThermalError', 'FirmwareUARTError', 'FirmwareUDPError', 'FirmwareUSBError', 'GET_DEVICE_INFO', 'GET_DRIVER_INFO', 'HANDLE_DICT', 'HANDLE_LIST', 'HeronAin', 'HeronAinImu', 'HeronAinPlus', 'I2CAddressSizeNotVaildError', 'I2CClockNotSupportError', 'I2CPortNotAvaliableError', 'IniFileExtensionNameError', 'IniFileNotFoundError', 'InputDataNotInRangeError', 'InputTypeNotConsistentError', 'InputTypeNotCorrectError', 'KestrelAin', 'KestrelAout', 'KestrelCin', 'KestrelCvin', 'KestrelDio', 'KestrelDioX', 'KestrelRelay', 'KestrelRes', 'KestrelTherm', 'LABEL_DICT', 'LinkNotOpenError', 'MOTION', 'MRDRPortNotAvaliable', 'MerlinAxis', 'MerlinDrive', 'MotionAccelerationModeError', 'MotionAxisError', 'MotionBreakPointModeError', 'MotionCaptureModeError', 'MotionCaptureTypeError', 'MotionDirectionError', 'MotionEnableError', 'MotionOperationModeError', 'MotionPolarityError', 'MotionPortNotAvaliable', 'MotionSearchDirectionError', 'MotionSearchTypeError', 'MotionStepperOutputError', 'MotionStopModeError', 'NUM_BCST_RETRIES', 'NUM_RETRIES', 'NetworkClient', 'NetworkConnectionError', 'NetworkConnectionLostError', 'NetworkDevice', 'NetworkModule', 'OPEN_CAN', 'ORVWarning', 'PACKET_TIMEOUT', 'PRODUCT_LIST', 'PWMChannelNotAvaliableError', 'PWMModule', 'PinsNotExistError', 'PinsValueNotDefineError', 'PloverAin', 'PloverAio', 'PloverCan', 'PloverDio', 'PloverRtd', 'PloverSink', 'PloverTc', 'QUEUE_SIZE_MAX', 'QUEUE_TIMEOUT', 'RETRY_TIMEOUT', 'ReceivePacketTimeoutError', 'RelayCounterIndexError', 'RelayModule', 'ReplyFormatError', 'SPIDataLengthExceedMaxError', 'SPIDataSizeNotVaildError', 'SPIFirstBitNotVaildError', 'SPIModeNotVaildError', 'SPIPortNotAvaliableError', 'SPIPrescalerNotVaildError', 'START_AI_STREAMING', 'START_AI_STREAMING_VARIABLE', 'START_AO_STREAMING', 'START_CAN', 'START_MOTION_MONITORING', 'START_UART_READING', 'STREAMING_CMD_LIST', 'StreamQueue', 'SystemAnalogModule', 'SystemModule', 'TCPClient', 'TCP_CMD_PORT', 'TCP_DATA_LENGTH_MAX', 'TCP_DATA_PORT', 'TCP_PKT_LENGTH_MAX', 'ThermalChipSelectNotAvaliableError', 'ThermalModeNotVaildError', 'ThermalPortNotAvaliableError', 'ThermalTypeNotVaildError', 'Trellis', 'TrellisLite', 'TrellisPortNotAvaliableError', 'UARTBaudRateNotSupportError', 'UARTDataBitNotSupportError', 'UARTExceedMaxLengthError', 'UARTParityNotSupportError', 'UARTPortNotAvaliableError', 'UARTQueueOverflowWarning', 'UARTStopBitNotSupportError', 'UDPClient', 'UDP_PKT_LENGTH_MAX', 'UDP_RECV_PORT', 'UDP_SEND_PORT', 'USBClient', 'USBConnectionError', 'USBDevice', 'USB_61E_PLUS_PID', 'USB_61E_PLUS_VID', 'USB_61E_RECEIVE_BYTE', 'USB_61E_RECEIVE_TIMEOUT', 'USB_61E_RECEIVE_TOTAL_BYTES', 'USB_EP_IN', 'USB_EP_OUT', 'USB_PID', 'USB_PKT_SIZE', 'USB_VID', 'WifiDevice', 'WifiModule', 'adjustDataList', 'changeToTrellisPort', 'checkEachItemInRange', 'checkFirmwareError', 'checkFuncPinMap', 'checkInputType', 'checkInputTypeConsistent', 'checkPinMap', 'clearBit', 'coerce', 'convert2U8ToI16', 'convert2U8ToU16', 'convert4U8ToF32', 'convert4U8ToI32', 'convert4U8ToU32', 'convert8U8ToF64', 'convert8U8ToI64', 'convert8U8ToU64', 'convertF32To4U8', 'convertF64To8U8', 'convertI16To2U8', 'convertI32To4U8', 'convertI64To8U8', 'convertIPAddrTo4U8', 'convertIndexAndBinaryListsToInt', 'convertIndexListToInt', 'convertIntToBinaryList', 'convertIntToIndexList', 'convertMACAddrTo6U8', 'convertStrToU8List', 'convertU16To2U8', 'convertU32To4U8', 'convertU64To8U8', 'convertU8ListToStr', 'errAHRSMode', 'errAHRSPort', 'errAIChannel', 'errAIChip', 'errAIMode', 'errAIPort', 'errAIRate', 'errAOChannel', 'errAOForm', 'errAOMode', 'errAOPort', 'errAORate', 'errAOSpan', 'errAPINotSupport', 'errCANDataLength', 'errCANPort', 'errCANSpeed', 'errCANTX', 'errCANTXPriority', 'errCounterchannel', 'errDIPort', 'errDOPort', 'errDPOTChannel', 'errDPOTPort', 'errDeviceClosed', 'errFirmwareAI', 'errFirmwareAO', 'errFirmwareBootloader', 'errFirmwareCAN', 'errFirmwareCore', 'errFirmwareDIO', 'errFirmwareDrive', 'errFirmwareEEPROM', 'errFirmwareEnable', 'errFirmwareEncoder', 'errFirmwareHALIndex', 'errFirmwareI2C', 'errFirmwareMotion', 'errFirmwareOLED', 'errFirmwareORVIndex', 'errFirmwareOther', 'errFirmwarePWM', 'errFirmwareParser', 'errFirmwarePinIndex', 'errFirmwarePulse', 'errFirmwareRTC', 'errFirmwareRelay', 'errFirmwareSPI', 'errFirmwareTCP', 'errFirmwareTIM', 'errFirmwareThermal', 'errFirmwareUART', 'errFirmwareUDP', 'errFirmwareUSB', 'errI2CAddressSize', 'errI2CClock', 'errI2CPort', 'errIniFileName', 'errIniFileNotFound', 'errInputDataNotInRange', 'errInputTypeNotConsistent', 'errInputTypeNotCorrect', 'errLinkNotOpen', 'errMotionAccelerationMode', 'errMotionAxis', 'errMotionBreakPoint', 'errMotionCaptureMode', 'errMotionCaptureType', 'errMotionDirection', 'errMotionEnable', 'errMotionOperationMode', 'errMotionPolarity', 'errMotionPort', 'errMotionSearchDirection', 'errMotionSearchType', 'errMotionStepperOutput', 'errMotionStopMode', 'errNetConnection', 'errNetConnectionLost', 'errPWMchannel', 'errPacketTimeout', 'errPinsNotExist', 'errPinsValueNotDefine', 'errRelayIndex', 'errReplyFormat', 'errSPIDataLengthExceedMax', 'errSPIDataSize', 'errSPIFirstBit', 'errSPIMode', 'errSPIPort', 'errSPIPrescaler', 'errThermalChipSelect', 'errThermalMode', 'errThermalPort', 'errThermalType', 'errTrellisSlot', 'errUARTBaudRate', 'errUARTDataBit', 'errUARTExceedMaxLength', 'errUARTParity', 'errUARTPort', 'errUARTStopBit', 'errUSBConnection', 'fillBit', 'printGenericError', 'readBit', 'warnAHRSOverflow', 'warnAIOverflow', 'warnCANOverflow', 'warnLibNotFound', 'warnUARTOverflow', 'writeBit']
class Error(Exception):
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, code: object, msg: object, *args, **kwargs) -> None
        """
    @staticmethod
    def __str__(*args, **kwargs):
        """
        (self: object) -> str
        """
class ORVWarning(UserWarning):
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, code: object, msg: object, *args, **kwargs) -> None
        """
    @staticmethod
    def __str__(*args, **kwargs):
        """
        (self: object) -> str
        """
class APINotSupportError(Error):
    code: typing.ClassVar[int] = -8000
    default_message: typing.ClassVar[str] = 'In this product, there is no support for this API.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class USBConnectionError(Error):
    code: typing.ClassVar[int] = -8001
    default_message: typing.ClassVar[str] = 'Failed to connect to ORV DAQ. Please check USB plugin status and serial number.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class NetworkConnectionError(Error):
    code: typing.ClassVar[int] = -8002
    default_message: typing.ClassVar[str] = 'Failed to connect to ORV DAQ. Please check network status and IP address.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class NetworkConnectionLostError(Error):
    code: typing.ClassVar[int] = -8003
    default_message: typing.ClassVar[str] = 'Network DAQ connection lost.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ReceivePacketTimeoutError(Error, TimeoutError):
    code: typing.ClassVar[int] = -8004
    default_message: typing.ClassVar[str] = 'Receive packet timeout.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class PinsNotExistError(Error):
    code: typing.ClassVar[int] = -8005
    default_message: typing.ClassVar[str] = 'The pin index is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class PinsValueNotDefineError(Error):
    code: typing.ClassVar[int] = -8006
    default_message: typing.ClassVar[str] = 'Inconsistency between the number of pins & the number of values.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class InputTypeNotConsistentError(Error):
    code: typing.ClassVar[int] = -8007
    default_message: typing.ClassVar[str] = 'Inconsistency between the type of pins & the type of values.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class InputTypeNotCorrectError(Error):
    code: typing.ClassVar[int] = -8008
    default_message: typing.ClassVar[str] = 'The data type is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class InputDataNotInRangeError(Error):
    code: typing.ClassVar[int] = -8009
    default_message: typing.ClassVar[str] = 'The input value is not the acceptable range.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class IniFileExtensionNameError(Error):
    code: typing.ClassVar[int] = -8010
    default_message: typing.ClassVar[str] = 'The Ini file extension name is not correct.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class IniFileNotFoundError(Error):
    code: typing.ClassVar[int] = -8011
    default_message: typing.ClassVar[str] = 'No such file or directory.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class DIPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8100
    default_message: typing.ClassVar[str] = 'The DI port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class DOPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8101
    default_message: typing.ClassVar[str] = 'The DO port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class PWMChannelNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8102
    default_message: typing.ClassVar[str] = 'The PWM channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CounterChannelNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8103
    default_message: typing.ClassVar[str] = 'The counter channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class RelayCounterIndexError(Error):
    code: typing.ClassVar[int] = -8104
    default_message: typing.ClassVar[str] = 'The relay counter index error is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AIChannelNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8200
    default_message: typing.ClassVar[str] = 'The AI channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AIPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8201
    default_message: typing.ClassVar[str] = 'The AI port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AICSNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8202
    default_message: typing.ClassVar[str] = 'The AI chip is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AIModeNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8203
    default_message: typing.ClassVar[str] = 'The AI mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AIRateNotVaildError(Error):
    code: typing.ClassVar[int] = -8204
    default_message: typing.ClassVar[str] = 'The AI sampling rate is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AOPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8300
    default_message: typing.ClassVar[str] = 'The AO port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AOModeNotVaildError(Error):
    code: typing.ClassVar[int] = -8301
    default_message: typing.ClassVar[str] = 'The AO generation mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AOSpanNotVaildError(Error):
    code: typing.ClassVar[int] = -8302
    default_message: typing.ClassVar[str] = 'The AO span mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AOChannelNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8303
    default_message: typing.ClassVar[str] = 'The AO channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AOFormNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8304
    default_message: typing.ClassVar[str] = 'The AO form is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AORateNotVaildError(Error):
    code: typing.ClassVar[int] = -8305
    default_message: typing.ClassVar[str] = 'The AO sampling rate is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AHRSPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8400
    default_message: typing.ClassVar[str] = 'The AHRS port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AHRSModeNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8401
    default_message: typing.ClassVar[str] = 'The AHRS mode is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ThermalPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8500
    default_message: typing.ClassVar[str] = 'The thermal port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ThermalChipSelectNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8501
    default_message: typing.ClassVar[str] = 'The thermal channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ThermalModeNotVaildError(Error):
    code: typing.ClassVar[int] = -8502
    default_message: typing.ClassVar[str] = 'The thermal filter mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ThermalTypeNotVaildError(Error):
    code: typing.ClassVar[int] = -8503
    default_message: typing.ClassVar[str] = 'The thermal type mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class I2CPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8600
    default_message: typing.ClassVar[str] = 'The I2C port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class I2CClockNotSupportError(Error):
    code: typing.ClassVar[int] = -8601
    default_message: typing.ClassVar[str] = 'The I2C clock mode is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class I2CAddressSizeNotVaildError(Error):
    code: typing.ClassVar[int] = -8602
    default_message: typing.ClassVar[str] = 'The I2C address mode is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8700
    default_message: typing.ClassVar[str] = 'The SPI port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIDataLengthExceedMaxError(Error):
    code: typing.ClassVar[int] = -8701
    default_message: typing.ClassVar[str] = 'The length of data exceeds maximum transfer length of SPI.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIDataSizeNotVaildError(Error):
    code: typing.ClassVar[int] = -8702
    default_message: typing.ClassVar[str] = 'The SPI data size mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIFirstBitNotVaildError(Error):
    code: typing.ClassVar[int] = -8703
    default_message: typing.ClassVar[str] = 'The SPI first bit mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIPrescalerNotVaildError(Error):
    code: typing.ClassVar[int] = -8704
    default_message: typing.ClassVar[str] = 'The SPI prescaler mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIModeNotVaildError(Error):
    code: typing.ClassVar[int] = -8705
    default_message: typing.ClassVar[str] = 'The SPI mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8800
    default_message: typing.ClassVar[str] = 'The UART port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTExceedMaxLengthError(Error):
    code: typing.ClassVar[int] = -8801
    default_message: typing.ClassVar[str] = 'The length of data exceeds maximum transfer length of UART.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTBaudRateNotSupportError(Error):
    code: typing.ClassVar[int] = -8802
    default_message: typing.ClassVar[str] = 'The UART baud rate is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTStopBitNotSupportError(Error):
    code: typing.ClassVar[int] = -8803
    default_message: typing.ClassVar[str] = 'The UART stop bit mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTParityNotSupportError(Error):
    code: typing.ClassVar[int] = -8804
    default_message: typing.ClassVar[str] = 'The UART parity mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTDataBitNotSupportError(Error):
    code: typing.ClassVar[int] = -8805
    default_message: typing.ClassVar[str] = 'The UART data bit mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -8900
    default_message: typing.ClassVar[str] = 'The CAN port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANSpeedNotVaildError(Error):
    code: typing.ClassVar[int] = -8901
    default_message: typing.ClassVar[str] = 'The CAN speed mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANDataLengthNotVaildError(Error):
    code: typing.ClassVar[int] = -8902
    default_message: typing.ClassVar[str] = 'The length of the specified CAN data is invalid.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANTXNotVaildError(Error):
    code: typing.ClassVar[int] = -8903
    default_message: typing.ClassVar[str] = 'The CAN TX is not valid or is not recognized'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANTXPriorityNotVaildError(Error):
    code: typing.ClassVar[int] = -8904
    default_message: typing.ClassVar[str] = 'The CAN TX priority is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class TrellisPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -9200
    default_message: typing.ClassVar[str] = 'The Trellis slot is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class DPOTPortNotAvaliableError(Error):
    code: typing.ClassVar[int] = -9300
    default_message: typing.ClassVar[str] = 'The DPOT port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class DPOTChannelNotAvaliableError(Error):
    code: typing.ClassVar[int] = -9301
    default_message: typing.ClassVar[str] = 'The amount of DPOT channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MRDRPortNotAvaliable(Error):
    code: typing.ClassVar[int] = -8900
    default_message: typing.ClassVar[str] = 'The drive port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionAxisError(ORVWarning):
    code: typing.ClassVar[int] = -9100
    default_message: typing.ClassVar[str] = 'The motion axis is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionPortNotAvaliable(ORVWarning):
    code: typing.ClassVar[int] = -9101
    default_message: typing.ClassVar[str] = 'The motion port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionStopModeError(ORVWarning):
    code: typing.ClassVar[int] = -9102
    default_message: typing.ClassVar[str] = 'The motion stop mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionSearchTypeError(ORVWarning):
    code: typing.ClassVar[int] = -9103
    default_message: typing.ClassVar[str] = 'The motion search type is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionSearchDirectionError(ORVWarning):
    code: typing.ClassVar[int] = -9104
    default_message: typing.ClassVar[str] = 'The motion search direction is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionEnableError(ORVWarning):
    code: typing.ClassVar[int] = -9105
    default_message: typing.ClassVar[str] = 'The motion enable is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionStepperOutputError(ORVWarning):
    code: typing.ClassVar[int] = -9106
    default_message: typing.ClassVar[str] = 'The motion stepper output is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionDirectionError(ORVWarning):
    code: typing.ClassVar[int] = -9107
    default_message: typing.ClassVar[str] = 'The motion direction is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionPolarityError(ORVWarning):
    code: typing.ClassVar[int] = -9108
    default_message: typing.ClassVar[str] = 'The motion polarity is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionCaptureTypeError(ORVWarning):
    code: typing.ClassVar[int] = -9109
    default_message: typing.ClassVar[str] = 'The motion capture type is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionCaptureModeError(ORVWarning):
    code: typing.ClassVar[int] = -9110
    default_message: typing.ClassVar[str] = 'The motion capture mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionBreakPointModeError(ORVWarning):
    code: typing.ClassVar[int] = -9111
    default_message: typing.ClassVar[str] = 'The motion breakpoint mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionOperationModeError(ORVWarning):
    code: typing.ClassVar[int] = -9112
    default_message: typing.ClassVar[str] = 'The motion operation mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionAccelerationModeError(ORVWarning):
    code: typing.ClassVar[int] = -9113
    default_message: typing.ClassVar[str] = 'The motion acceleration mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareEnableError(Error):
    code: typing.ClassVar[int] = -7000
    default_message: typing.ClassVar[str] = 'The functionality is not enabled in the firmware'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwarePinIndexError(Error):
    code: typing.ClassVar[int] = -7001
    default_message: typing.ClassVar[str] = 'The pin index error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareHALIndexError(Error):
    code: typing.ClassVar[int] = -7002
    default_message: typing.ClassVar[str] = 'The HAL handle index error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareORVIndexError(Error):
    code: typing.ClassVar[int] = -7003
    default_message: typing.ClassVar[str] = 'The HAL error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareRTCError(Error):
    code: typing.ClassVar[int] = -7004
    default_message: typing.ClassVar[str] = 'The RTC error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareI2CError(Error):
    code: typing.ClassVar[int] = -7005
    default_message: typing.ClassVar[str] = 'The I2C error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareSPIError(Error):
    code: typing.ClassVar[int] = -7006
    default_message: typing.ClassVar[str] = 'The SPI error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareUARTError(Error):
    code: typing.ClassVar[int] = -7007
    default_message: typing.ClassVar[str] = 'The UART error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareTIMError(Error):
    code: typing.ClassVar[int] = -7008
    default_message: typing.ClassVar[str] = 'The Time error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwarePWMError(Error):
    code: typing.ClassVar[int] = -7009
    default_message: typing.ClassVar[str] = 'The PWM error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwarePulseError(Error):
    code: typing.ClassVar[int] = -7010
    default_message: typing.ClassVar[str] = 'The pulse counter error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareEncoderError(Error):
    code: typing.ClassVar[int] = -7011
    default_message: typing.ClassVar[str] = 'The encoder counter error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareEEPROMError(Error):
    code: typing.ClassVar[int] = -7012
    default_message: typing.ClassVar[str] = 'The EEPROM error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareOLEDError(Error):
    code: typing.ClassVar[int] = -7013
    default_message: typing.ClassVar[str] = 'The OLED error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareCoreError(Error):
    code: typing.ClassVar[int] = -7014
    default_message: typing.ClassVar[str] = 'The Core error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareDIOError(Error):
    code: typing.ClassVar[int] = -7015
    default_message: typing.ClassVar[str] = 'The DIO error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareRelayError(Error):
    code: typing.ClassVar[int] = -7016
    default_message: typing.ClassVar[str] = 'The relay error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareAIError(Error):
    code: typing.ClassVar[int] = -7017
    default_message: typing.ClassVar[str] = 'The AI error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareAOError(Error):
    code: typing.ClassVar[int] = -7018
    default_message: typing.ClassVar[str] = 'The AO error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareMotionError(Error):
    code: typing.ClassVar[int] = -7019
    default_message: typing.ClassVar[str] = 'The motion error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareDriveError(Error):
    code: typing.ClassVar[int] = -7020
    default_message: typing.ClassVar[str] = 'The drive error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareThermalError(Error):
    code: typing.ClassVar[int] = -7021
    default_message: typing.ClassVar[str] = 'The thermal error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareCANError(Error):
    code: typing.ClassVar[int] = -7022
    default_message: typing.ClassVar[str] = 'The CAN error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareUSBError(Error):
    code: typing.ClassVar[int] = -7023
    default_message: typing.ClassVar[str] = 'The USB read/write error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareTCPError(Error):
    code: typing.ClassVar[int] = -7024
    default_message: typing.ClassVar[str] = 'The TCP read/write error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareUDPError(Error):
    code: typing.ClassVar[int] = -7025
    default_message: typing.ClassVar[str] = 'The UDP read/write error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareBootloaderError(Error):
    code: typing.ClassVar[int] = -7026
    default_message: typing.ClassVar[str] = 'The bootloader error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareParserError(Error):
    code: typing.ClassVar[int] = -7027
    default_message: typing.ClassVar[str] = 'The parser error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareOtherError(Error):
    code: typing.ClassVar[int] = -7028
    default_message: typing.ClassVar[str] = 'The other error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ExtLibNotFoundWarning(ORVWarning):
    code: typing.ClassVar[int] = 519000
    default_message: typing.ClassVar[str] = 'External library "libusb-1.0.dll" not found at indicated path will look at the default path instead'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AIQueueOverflowWarning(ORVWarning):
    code: typing.ClassVar[int] = 520000
    default_message: typing.ClassVar[str] = 'Occurrence AI queue overflow.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTQueueOverflowWarning(ORVWarning):
    code: typing.ClassVar[int] = 520001
    default_message: typing.ClassVar[str] = 'Occurrence UART queue overflow.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANQueueOverflowWarning(ORVWarning):
    code: typing.ClassVar[int] = 520002
    default_message: typing.ClassVar[str] = 'Occurrence CAN queue overflow.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AHRSQueueOverflowWarning(ORVWarning):
    code: typing.ClassVar[int] = 520003
    default_message: typing.ClassVar[str] = 'Occurrence AHRS queue overflow.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class LinkNotOpenError(Error):
    code: typing.ClassVar[int] = -8090
    default_message: typing.ClassVar[str] = 'The link to the device is not open.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class DeviceClosedError(Error):
    code: typing.ClassVar[int] = -8091
    default_message: typing.ClassVar[str] = 'The device handle is closed.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ReplyFormatError(Error):
    code: typing.ClassVar[int] = -8092
    default_message: typing.ClassVar[str] = 'The reply of the device is malformed.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class Client:
    def _splitPacket(self, data: typing.Any = []) -> list:
        ...
    def recvAndSplitPacket(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> list:
        ...
    def recvPacket(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> bytes:
        ...
    def sendPacket(self, arg0: typing.Any) -> None:
        ...
    @property
    def last_index(self) -> int:
        ...
    @property
    def stream(self) -> bytes:
        ...
class NetworkClient(Client):
    def disconnect(self) -> None:
        ...
    def setTimeout(self, timeout: typing.SupportsFloat | typing.SupportsIndex | None = None) -> None:
        ...
    @property
    def socket(self) -> int:
        ...
class TCPClient(NetworkClient):
    def __init__(self) -> None:
        ...
    def connect(self, ip_addr: str, port: typing.SupportsInt | typing.SupportsIndex) -> bool:
        ...
class UDPClient(NetworkClient):
    def __init__(self) -> None:
        ...
    def bind(self, ip_addr: str, port: typing.SupportsInt | typing.SupportsIndex) -> bool:
        ...
    def sendBcstPacket(self, arg0: typing.Any) -> None:
        ...
    def setBroadcastTarget(self, host: str, port: typing.SupportsInt | typing.SupportsIndex = 61557) -> None:
        ...
    @property
    def broadcast_target(self) -> tuple[str, int]:
        ...
class USBClient(Client):
    def __init__(self, serial_num: str = 'default') -> None:
        ...
    def takeProductName(self) -> str:
        ...
    def takeSerialNumber(self) -> str:
        ...
class StreamQueue:
    def empty(self) -> bool:
        ...
    def get_nowait(self) -> bytes:
        ...
    def put(self, arg0: typing.Any) -> None:
        ...
    def qsize(self) -> int:
        ...
class Device:
    def __enter__(self) -> typing.Any:
        ...
    def __exit__(self, *args) -> None:
        ...
    def _aliveThreads(self) -> list[str]:
        ...
    def _broadcastAnswers(self, cmd: typing.SupportsInt | typing.SupportsIndex) -> set:
        ...
    def _broadcastPacket(self, cmd: typing.SupportsInt | typing.SupportsIndex, data_out: typing.Any) -> set:
        ...
    def _broadcastPacket_async(self, cmd: typing.SupportsInt | typing.SupportsIndex, data_out: typing.Any) -> typing.Any:
        ...
    def _checkCommandType(self, cmd: typing.SupportsInt | typing.SupportsIndex, data: typing.Any) -> str:
        ...
    def _echoPacket(self, cmd: typing.SupportsInt | typing.SupportsIndex, data_out: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex) -> bytes:
        ...
    def _echoPacketWithRetry(self, cmd: typing.SupportsInt | typing.SupportsIndex, data_out: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 5.0) -> bytes:
        ...
    def _echoPacketWithRetry_async(self, cmd: typing.SupportsInt | typing.SupportsIndex, data_out: typing.Any, num_retries: typing.SupportsInt | typing.SupportsIndex = 3, timeout: typing.SupportsFloat | typing.SupportsIndex = 5.0) -> typing.Any:
        ...
    def _echoPacket_async(self, cmd: typing.SupportsInt | typing.SupportsIndex, data_out: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 5.0) -> typing.Any:
        ...
    def _getDeviceName(self) -> str:
        ...
    def _getReplyFromPool(self, cmd: typing.SupportsInt | typing.SupportsIndex, timeout: typing.SupportsFloat | typing.SupportsIndex) -> bytes:
        ...
    def _getReplyFromPool_async(self, cmd: typing.SupportsInt | typing.SupportsIndex) -> typing.Any:
        ...
    def _getStreamingFromPool(self, queue_: StreamQueue, num_samples: typing.SupportsInt | typing.SupportsIndex, delay: typing.SupportsFloat | typing.SupportsIndex) -> list:
        ...
    def _getStreamingFromPool_async(self, queue_: StreamQueue, num_samples: typing.SupportsInt | typing.SupportsIndex, delay: typing.SupportsFloat | typing.SupportsIndex) -> typing.Any:
        ...
    def _preparePacket(self, cmd: typing.SupportsInt | typing.SupportsIndex, data_out: typing.Any = []) -> list:
        ...
    def _putToDataPool(self, cmd: typing.SupportsInt | typing.SupportsIndex, data: typing.Any) -> None:
        ...
    def _sendPacketWithoutReply(self, cmd: typing.SupportsInt | typing.SupportsIndex, data_out: typing.Any) -> None:
        ...
    def _sendPacketWithoutReply_async(self, cmd: typing.SupportsInt | typing.SupportsIndex, data_out: typing.Any) -> typing.Any:
        ...
    def _streamQueue(self, key: typing.Any) -> StreamQueue:
        ...
    @property
    def I2C_dict(self) -> dict:
        ...
    @property
    def SPI_dict(self) -> dict:
        ...
    @property
    def ahrs_dict(self) -> dict:
        ...
    @property
    def ai_dict(self) -> dict:
        ...
    @property
    def ao_dict(self) -> dict:
        ...
    @property
    def can_dict(self) -> dict:
        ...
    @property
    def data_pool_echo(self) -> dict:
        ...
    @property
    def data_pool_strm(self) -> dict:
        ...
    @property
    def di_dict(self) -> dict:
        ...
    @property
    def dio_num_pins_per_port(self) -> int:
        ...
    @property
    def do_dict(self) -> dict:
        ...
    @property
    def killed(self) -> bool:
        ...
    @property
    def motion_dict(self) -> dict:
        ...
    @property
    def mrdr_dict(self) -> dict:
        ...
    @property
    def thermal_dict(self) -> dict:
        ...
    @property
    def uart_dict(self) -> dict:
        ...
class USBDevice(Device):
    def __init__(self, verbose: bool = True) -> None:
        ...
    def close(self, verbose: bool = True) -> None:
        ...
    def connect(self, serial_num: str = 'default', verbose: bool = True) -> None:
        ...
    def disconnect(self, verbose: bool = True) -> None:
        ...
    @property
    def client_cmd(self) -> USBClient:
        ...
    @property
    def connect_status_cmd(self) -> bool:
        ...
    @property
    def serial_num(self) -> str | None:
        ...
class NetworkDevice(Device):
    def __init__(self, verbose: bool = True) -> None:
        ...
    def close(self, verbose: bool = True) -> None:
        ...
    def connect(self, ip_addr: str = '192.168.1.110', port: typing.SupportsInt | typing.SupportsIndex = 7, verbose: bool = True) -> None:
        ...
    def disconnect(self, verbose: bool = True) -> None:
        ...
    @property
    def client_cmd(self) -> TCPClient:
        ...
    @property
    def connect_status_cmd(self) -> bool:
        ...
    @property
    def ip_addr(self) -> str | None:
        ...
class ETHDevice(NetworkDevice):
    def __init__(self, verbose: bool = True) -> None:
        ...
class WifiDevice(NetworkDevice):
    def __init__(self, verbose: bool = True) -> None:
        ...
    def close(self, verbose: bool = True) -> None:
        ...
    def connect(self, ip: str = '192.168.5.79', port1: typing.SupportsInt | typing.SupportsIndex = 1336, port2: typing.SupportsInt | typing.SupportsIndex = 7, verbose: bool = True) -> bool:
        ...
    def disconnect(self, verbose: bool = True) -> None:
        ...
    @property
    def client_data(self) -> TCPClient:
        ...
    @property
    def connect_status_data(self) -> bool:
        ...
class BroadcastDevice(Device):
    def __init__(self, verbose: bool = True, broadcast_addr: str | None = None) -> None:
        ...
    def close(self, verbose: bool = True) -> None:
        ...
    def connect(self, verbose: bool = True) -> None:
        ...
    def disconnect(self, verbose: bool = True) -> None:
        ...
    @property
    def broadcast_window(self) -> float:
        """
        seconds a broadcast collects answers: PACKET_TIMEOUT, or PYORV_BROADCAST_WINDOW when set
        """
    @property
    def client_udp(self) -> UDPClient:
        ...
    @property
    def connect_status_udp(self) -> bool:
        ...
class _LoopReactor:
    def _run_posted(self) -> None:
        ...
    def _run_timers(self) -> None:
        ...
class CounterModule:
    def Counter_close(self, channel: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Counter_close_async(self, channel: typing.Any) -> typing.Any:
        ...
    def Counter_open(self, channel: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Counter_open_async(self, channel: typing.Any) -> typing.Any:
        ...
    def Counter_read(self, channel: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Counter_read_async(self, channel: typing.Any) -> typing.Any:
        ...
    def Counter_start(self, channel: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Counter_start_async(self, channel: typing.Any) -> typing.Any:
        ...
    def Counter_stop(self, channel: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Counter_stop_async(self, channel: typing.Any) -> typing.Any:
        ...
    def _checkCounterChannel(self, channel: typing.Any) -> bool:
        ...
class DIOModule:
    def DIO_loadStartup(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DIO_loadStartup_async(self, port: typing.Any) -> typing.Any:
        ...
    def DIO_saveStartup(self, port: typing.Any, enabled: typing.Any, direction: typing.Any, state: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DIO_saveStartup_async(self, port: typing.Any, enabled: typing.Any, direction: typing.Any, state: typing.Any) -> typing.Any:
        ...
    def DIO_setPortDI(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DIO_setPortDI_async(self, port: typing.Any) -> typing.Any:
        ...
    def DIO_setPortDO(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DIO_setPortDO_async(self, port: typing.Any) -> typing.Any:
        ...
    def DIO_setPortIdle(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DIO_setPortIdle_async(self, port: typing.Any) -> typing.Any:
        ...
    def DI_closePins(self, port: typing.Any, pin: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DI_closePins_async(self, port: typing.Any, pin: typing.Any) -> typing.Any:
        ...
    def DI_closePort(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DI_closePort_async(self, port: typing.Any) -> typing.Any:
        ...
    def DI_getPinMap(self) -> dict[int, list[int]]:
        ...
    def DI_getPinMap_async(self) -> typing.Any:
        ...
    def DI_openPins(self, port: typing.Any, pin: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DI_openPins_async(self, port: typing.Any, pin: typing.Any) -> typing.Any:
        ...
    def DI_openPort(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DI_openPort_async(self, port: typing.Any) -> typing.Any:
        ...
    def DI_readPins(self, port: typing.Any, pin: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DI_readPins_async(self, port: typing.Any, pin: typing.Any) -> typing.Any:
        ...
    def DI_readPort(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DI_readPort_async(self, port: typing.Any) -> typing.Any:
        ...
    def DO_closePins(self, port: typing.Any, pin: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DO_closePins_async(self, port: typing.Any, pin: typing.Any) -> typing.Any:
        ...
    def DO_closePort(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DO_closePort_async(self, port: typing.Any) -> typing.Any:
        ...
    def DO_getPinMap(self) -> dict[int, list[int]]:
        ...
    def DO_getPinMap_async(self) -> typing.Any:
        ...
    def DO_openPins(self, port: typing.Any, pin: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DO_openPins_async(self, port: typing.Any, pin: typing.Any) -> typing.Any:
        ...
    def DO_openPort(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DO_openPort_async(self, port: typing.Any) -> typing.Any:
        ...
    def DO_togglePins(self, port: typing.Any, pin: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DO_togglePins_async(self, port: typing.Any, pin: typing.Any) -> typing.Any:
        ...
    def DO_togglePort(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DO_togglePort_async(self, port: typing.Any) -> typing.Any:
        ...
    def DO_writePins(self, port: typing.Any, pin: typing.Any, value: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DO_writePins_async(self, port: typing.Any, pin: typing.Any, value: typing.Any) -> typing.Any:
        ...
    def DO_writePort(self, port: typing.Any, value: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DO_writePort_async(self, port: typing.Any, value: typing.Any) -> typing.Any:
        ...
    def _checkDIPort(self, port: typing.Any) -> bool:
        ...
    def _checkDIPortAndPin(self, port: typing.Any, pin_list: typing.Any) -> bool:
        ...
    def _checkDOPort(self, port: typing.Any) -> bool:
        ...
    def _checkDOPortAndPin(self, port: typing.Any, pin_list: typing.Any) -> bool:
        ...
    def _closeDIOInPins(self, port: typing.Any, pin: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _closeDIOInPins_async(self, port: typing.Any, pin: typing.Any) -> typing.Any:
        ...
    def _closeDIOInPort(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _closeDIOInPort_async(self, port: typing.Any) -> typing.Any:
        ...
    def _getDIOCurrent(self, port: typing.Any, mask: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _getDIOCurrent_async(self, port: typing.Any, mask: typing.Any) -> typing.Any:
        ...
    def _getDIOState(self, port: typing.Any, mask: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _getDIOState_async(self, port: typing.Any, mask: typing.Any) -> typing.Any:
        ...
    def _getPinIndexInInt(self, pin: typing.Any) -> typing.Any:
        ...
    def _getPinIndexInList(self, pin: typing.Any) -> typing.Any:
        ...
    def _readAndGetDI(self, port: typing.Any, mask: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _readAndGetDI_async(self, port: typing.Any, mask: typing.Any) -> typing.Any:
        ...
    def _readDI(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _readDI_async(self, port: typing.Any) -> typing.Any:
        ...
    def _setAndWriteDO(self, port: typing.Any, mask: typing.Any, state: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _setAndWriteDO_async(self, port: typing.Any, mask: typing.Any, state: typing.Any) -> typing.Any:
        ...
    def _setDIOCurrent(self, port: typing.Any, mask: typing.Any, enabled: typing.Any, direction: typing.Any, state: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _setDIOCurrent_async(self, port: typing.Any, mask: typing.Any, enabled: typing.Any, direction: typing.Any, state: typing.Any) -> typing.Any:
        ...
    def _setDIOState(self, port: typing.Any, mask: typing.Any, state: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _setDIOState_async(self, port: typing.Any, mask: typing.Any, state: typing.Any) -> typing.Any:
        ...
    def _toggleAndWriteDO(self, port: typing.Any, mask: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _toggleAndWriteDO_async(self, port: typing.Any, mask: typing.Any) -> typing.Any:
        ...
    def _toggleDIODirection(self, port: typing.Any, mask: typing.Any, state: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _toggleDIODirection_async(self, port: typing.Any, mask: typing.Any, state: typing.Any) -> typing.Any:
        ...
    def _writeDO(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _writeDO_async(self, port: typing.Any) -> typing.Any:
        ...
class DPOTModule:
    def DPOT_close(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DPOT_close_async(self, port: typing.Any) -> typing.Any:
        ...
    def DPOT_open(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DPOT_open_async(self, port: typing.Any) -> typing.Any:
        ...
    def DPOT_readByChannel(self, port: typing.Any, channel: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DPOT_readByChannel_async(self, port: typing.Any, channel: typing.Any) -> typing.Any:
        ...
    def DPOT_writeAllChannel(self, port: typing.Any, resistance_ratio: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def DPOT_writeAllChannel_async(self, port: typing.Any, resistance_ratio: typing.Any) -> typing.Any:
        ...
    def _checkDPOTChannelAmount(self, channel: typing.Any) -> bool:
        ...
    def _checkDPOTPort(self, port: typing.Any) -> bool:
        ...
class NetworkModule:
    def Net_getGateway(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Net_getGateway_async(self) -> typing.Any:
        ...
    def Net_getIPAddrAndSubmask(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Net_getIPAddrAndSubmask_async(self) -> typing.Any:
        ...
    def Net_getMACAddr(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Net_getMACAddr_async(self) -> typing.Any:
        ...
    def Net_setIPAddrAndSubmask(self, ip_addr: typing.Any, subnet_mask: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Net_setIPAddrAndSubmask_async(self, ip_addr: typing.Any, subnet_mask: typing.Any) -> typing.Any:
        ...
    def Sys_getGateway(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_getGateway_async(self) -> typing.Any:
        ...
    def Sys_getIPAddrAndSubmask(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_getIPAddrAndSubmask_async(self) -> typing.Any:
        ...
    def Sys_getMACAddr(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_getMACAddr_async(self) -> typing.Any:
        ...
    def Sys_setIPAddrAndSubmask(self, ip_addr: typing.Any, subnet_mask: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_setIPAddrAndSubmask_async(self, ip_addr: typing.Any, subnet_mask: typing.Any) -> typing.Any:
        ...
    def _setGateway(self, gateway: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _setGateway_async(self, gateway: typing.Any) -> typing.Any:
        ...
    def _setMACAddr(self, mac_addr: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _setMACAddr_async(self, mac_addr: typing.Any) -> typing.Any:
        ...
    @property
    def gateway(self) -> str:
        ...
    @property
    def ip_addr(self) -> str:
        ...
    @property
    def mac_addr(self) -> str:
        ...
    @property
    def subnet_mask(self) -> str:
        ...
class PWMModule:
    def PWM_close(self, channel: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def PWM_close_async(self, channel: typing.Any) -> typing.Any:
        ...
    def PWM_open(self, channel: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def PWM_open_async(self, channel: typing.Any) -> typing.Any:
        ...
    def PWM_setDutyCycle(self, channel: typing.Any, duty_cycle: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def PWM_setDutyCycle_async(self, channel: typing.Any, duty_cycle: typing.Any) -> typing.Any:
        ...
    def PWM_setFrequency(self, channel: typing.Any, frequency: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def PWM_setFrequency_async(self, channel: typing.Any, frequency: typing.Any) -> typing.Any:
        ...
    def PWM_start(self, channel: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def PWM_start_async(self, channel: typing.Any) -> typing.Any:
        ...
    def PWM_stop(self, channel: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def PWM_stop_async(self, channel: typing.Any) -> typing.Any:
        ...
    def _checkPWMChannel(self, channel: typing.Any) -> bool:
        ...
class RelayModule:
    def Relay_close(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Relay_close_async(self) -> typing.Any:
        ...
    def Relay_open(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Relay_open_async(self) -> typing.Any:
        ...
    def Relay_read(self, index: typing.Any = -1, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Relay_read_async(self, index: typing.Any = -1) -> typing.Any:
        ...
    def _checkRelayindex(self, index: typing.Any) -> bool:
        ...
class SystemAnalogModule:
    def Wifi_readAcceleration(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_readAccleration_async(self) -> typing.Any:
        ...
    def Wifi_readBattery(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_readBattery_async(self) -> typing.Any:
        ...
    def Wifi_readThermo(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_readThermo_async(self) -> typing.Any:
        ...
    def _Wifi_resetAIBuffer(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _Wifi_resetAIBuffer_async(self) -> typing.Any:
        ...
    @property
    def battery(self) -> int:
        ...
    @property
    def thermo(self) -> float:
        ...
class SystemModule:
    def Sys_getDriverInfo(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_getDriverInfo_async(self) -> typing.Any:
        ...
    def Sys_getMode(self, slot: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_getMode_async(self, slot: typing.Any) -> typing.Any:
        ...
    def Sys_getPinModeInPort(self, port: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_getPinModeInPort_async(self, port: typing.Any) -> typing.Any:
        ...
    def Sys_getPythonVersion(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_getPythonVersion_async(self) -> typing.Any:
        ...
    def Sys_getRTC(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_getRTC_async(self) -> typing.Any:
        ...
    def Sys_getSerialNumber(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_getSerialNumber_async(self) -> typing.Any:
        ...
    def Sys_reboot(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_rebootOnBootloader(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_rebootOnBootloader_async(self) -> typing.Any:
        ...
    def Sys_reboot_async(self) -> typing.Any:
        ...
    def Sys_setAIOMode(self, slot: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_setAIOMode_async(self, slot: typing.Any) -> typing.Any:
        ...
    def Sys_setDIMode(self, slot: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_setDIMode_async(self, slot: typing.Any) -> typing.Any:
        ...
    def Sys_setDIOMode(self, slot: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_setDIOMode_async(self, slot: typing.Any) -> typing.Any:
        ...
    def Sys_setDOMode(self, slot: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_setDOMode_async(self, slot: typing.Any) -> typing.Any:
        ...
    def Sys_setIdleMode(self, slot: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_setIdleMode_async(self, slot: typing.Any) -> typing.Any:
        ...
    def Sys_setMotionMode(self, slot: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_setMotionMode_async(self, slot: typing.Any) -> typing.Any:
        ...
    def Sys_setRTC(self, year: typing.Any, month: typing.Any, day: typing.Any, hour: typing.Any, minute: typing.Any, second: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_setRTC_async(self, year: typing.Any, month: typing.Any, day: typing.Any, hour: typing.Any, minute: typing.Any, second: typing.Any) -> typing.Any:
        ...
    def Sys_setSwitchMode(self, slot: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Sys_setSwitchMode_async(self, slot: typing.Any) -> typing.Any:
        ...
    def _Sys_setSlotMode(self, slot: typing.Any, mode: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _Sys_setSlotMode_async(self, slot: typing.Any, mode: typing.Any) -> typing.Any:
        ...
    def _checkTrellisSlot(self, slot: typing.Any) -> None:
        ...
    def _getDriverInfo_dev(self, mode: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _getDriverInfo_dev_async(self, mode: typing.Any) -> typing.Any:
        ...
    def _getEEPROMDevice(self, device_number: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _getEEPROMDevice_async(self, device_number: typing.Any) -> typing.Any:
        ...
    def _getEEPROMPage(self, page_number: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _getEEPROMPage_async(self, page_number: typing.Any) -> typing.Any:
        ...
    def _getThreads(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _getThreads_async(self) -> typing.Any:
        ...
    def _resetFactory(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _resetFactory_async(self) -> typing.Any:
        ...
    def _setEEPROMByte(self, page_number: typing.Any, byte_index: typing.Any, value: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _setEEPROMByte_async(self, page_number: typing.Any, byte_index: typing.Any, value: typing.Any) -> typing.Any:
        ...
    def _setEEPROMPage(self, page_number: typing.Any, int_list: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _setEEPROMPage_async(self, page_number: typing.Any, int_list: typing.Any) -> typing.Any:
        ...
    def _setSerialNumber(self, serial_num: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _setSerialNumber_async(self, serial_num: typing.Any) -> typing.Any:
        ...
    @property
    def driver_info(self) -> typing.Any:
        ...
    @property
    def num_of_pins(self) -> int:
        ...
    @property
    def pin_mode_list(self) -> list[int]:
        ...
    @property
    def rtc_time(self) -> str:
        ...
    @property
    def serial_number(self) -> str:
        ...
    @property
    def thread_info(self) -> str:
        ...
class WifiModule:
    def Wifi_getChargeStatus(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_getChargeStatus_async(self) -> typing.Any:
        ...
    def Wifi_getPowerGoodStatus(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_getPowerGoodStatus_async(self) -> typing.Any:
        ...
    def Wifi_getWifiBandWidth(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_getWifiBandWidth_async(self) -> typing.Any:
        ...
    def Wifi_getWifiConfiguration(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_getWifiConfiguration_async(self) -> typing.Any:
        ...
    def Wifi_readRSSI(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_readRSSI_async(self) -> typing.Any:
        ...
    def Wifi_resetLED(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_resetLED_async(self) -> typing.Any:
        ...
    def Wifi_setAP(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_setAP_async(self) -> typing.Any:
        ...
    def Wifi_setBandwidth(self, bandwidth: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_setBandwidth_async(self, bandwidth: typing.Any) -> typing.Any:
        ...
    def Wifi_setBlueLED(self, value: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_setBlueLED_async(self, value: typing.Any) -> typing.Any:
        ...
    def Wifi_setGreenLED(self, value: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_setGreenLED_async(self, value: typing.Any) -> typing.Any:
        ...
    def Wifi_setRedLED(self, value: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def Wifi_setRedLED_async(self, value: typing.Any) -> typing.Any:
        ...
    def _setWifiConfiguration(self, retry_wifi_times: typing.Any, ap_time: typing.Any, timeout: typing.SupportsFloat | typing.SupportsIndex = 3.0) -> typing.Any:
        ...
    def _setWifiConfiguration_async(self, retry_wifi_times: typing.Any, ap_time: typing.Any) -> typing.Any:
        ...
    @property
    def bandwidth(self) -> int:
        ...
    @property
    def rssi(self) -> int:
        ...
class BroadcastModule:
    def Bcst_checkMACAndReboot(self, mac_addr: typing.Any) -> typing.Any:
        ...
    def Bcst_checkMACAndReboot_async(self, mac_addr: typing.Any) -> typing.Any:
        ...
    def Bcst_checkMACAndSetIP(self, ip_addr: typing.Any, mac_addr: typing.Any, subnet_mask: typing.Any) -> typing.Any:
        ...
    def Bcst_checkMACAndSetIP_async(self, ip_addr: typing.Any, mac_addr: typing.Any, subnet_mask: typing.Any) -> typing.Any:
        ...
    def Bcst_enumerateNetworkDevices(self) -> typing.Any:
        ...
    def Bcst_enumerateNetworkDevices_async(self) -> typing.Any:
        ...
    def Bcst_enumerateUSBDevices(self) -> list[list[str]]:
        ...
class DeviceFinder(BroadcastDevice, BroadcastModule):
    def __init__(self, verbose: bool = True, broadcast_addr: str | None = None) -> None:
        ...
class HeronAinImu(WifiDevice, SystemModule, SystemAnalogModule, NetworkModule, WifiModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class HeronAin(WifiDevice, SystemModule, SystemAnalogModule, NetworkModule, WifiModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class HeronAinPlus(WifiDevice, SystemModule, SystemAnalogModule, NetworkModule, WifiModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class Trellis(ETHDevice, SystemModule, NetworkModule, DIOModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class MerlinDrive(ETHDevice, SystemModule, NetworkModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class MerlinAxis(ETHDevice, SystemModule, NetworkModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelAin(ETHDevice, SystemModule, NetworkModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelDio(ETHDevice, SystemModule, NetworkModule, DIOModule, PWMModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelDioX(ETHDevice, SystemModule, NetworkModule, DIOModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelCin(ETHDevice, SystemModule, NetworkModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelCvin(ETHDevice, SystemModule, NetworkModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelRelay(ETHDevice, SystemModule, NetworkModule, DIOModule, RelayModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelAout(ETHDevice, SystemModule, NetworkModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelRes(ETHDevice, SystemModule, NetworkModule, DPOTModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelTherm(ETHDevice, SystemModule, NetworkModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverDio(USBDevice, SystemModule, DIOModule, CounterModule, PWMModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverAin(USBDevice, SystemModule, DIOModule, CounterModule, PWMModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverTc(USBDevice, SystemModule, DIOModule, CounterModule, PWMModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverCan(USBDevice, SystemModule, DIOModule, CounterModule, PWMModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverSink(USBDevice, SystemModule, DIOModule, CounterModule, PWMModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverAio(USBDevice, SystemModule, DIOModule, CounterModule, PWMModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverRtd(USBDevice, SystemModule, DIOModule, CounterModule, PWMModule):
    def __init__(self, verbose: bool = True) -> None:
        ...
class TrellisLite:
    """
    Trellis-Lite: a class with no bases and no operations.
    """
def _checkModelClasses() -> None:
    ...
def _modelTable() -> dict:
    ...
def _shutdown() -> None:
    ...
def adjustDataList(data_list: typing.Any, list_length: typing.Any = 8, padding_num: typing.Any = 0) -> typing.Any:
    ...
def changeToTrellisPort(slot: typing.Any) -> typing.Any:
    ...
def checkEachItemInRange(int_list: typing.Any, low: typing.Any = 0, high: typing.Any = 255, msg: typing.Any = None) -> None:
    ...
def checkFirmwareError(arg0: typing.Any) -> int:
    ...
def checkFuncPinMap(cell: typing.Any, pinmap_list: typing.Any, allow_state_list: typing.Any) -> bool:
    ...
def checkInputType(data: typing.Any, correct_type: typing.Any = ...) -> None:
    ...
def checkInputTypeConsistent(data: typing.Any, data2: typing.Any) -> None:
    ...
def checkPinMap(cell_list: typing.Any, pinmap_list: typing.Any, allow_state_list: typing.Any) -> bool:
    ...
def clearBit(number: typing.Any, index: typing.Any) -> int:
    ...
def coerce(list_: typing.Any, lower: typing.Any = 0, upper: typing.Any = 1) -> typing.Any:
    ...
def convert2U8ToI16(int_list: typing.Any) -> int:
    ...
def convert2U8ToU16(int_list: typing.Any) -> int:
    ...
def convert4U8ToF32(int_list: typing.Any) -> float:
    ...
def convert4U8ToI32(int_list: typing.Any) -> int:
    ...
def convert4U8ToU32(int_list: typing.Any) -> int:
    ...
def convert8U8ToF64(int_list: typing.Any) -> float:
    ...
def convert8U8ToI64(int_list: typing.Any) -> int:
    ...
def convert8U8ToU64(int_list: typing.Any) -> int:
    ...
def convertF32To4U8(value: typing.Any) -> bytes:
    ...
def convertF64To8U8(value: typing.Any) -> bytes:
    ...
def convertI16To2U8(value: typing.Any) -> bytes:
    ...
def convertI32To4U8(value: typing.Any) -> bytes:
    ...
def convertI64To8U8(value: typing.Any) -> bytes:
    ...
def convertIPAddrTo4U8(value: typing.Any) -> bytes:
    ...
def convertIndexAndBinaryListsToInt(index_list: typing.Any, binary_list: typing.Any) -> int:
    ...
def convertIndexListToInt(index_list: typing.Any) -> int:
    ...
def convertIntToBinaryList(value_int: typing.Any, width: typing.Any) -> list[int]:
    ...
def convertIntToIndexList(value_int: typing.Any) -> list[int]:
    ...
def convertMACAddrTo6U8(str_: typing.Any) -> list[int]:
    ...
def convertStrToU8List(str_: typing.Any) -> list[int]:
    ...
def convertU16To2U8(value: typing.Any) -> bytes:
    ...
def convertU32To4U8(value: typing.Any) -> bytes:
    ...
def convertU64To8U8(value: typing.Any) -> bytes:
    ...
def convertU8ListToStr(int_list: typing.Any) -> str:
    ...
def fillBit(number: typing.Any, index: typing.Any) -> int:
    ...
def printGenericError(arg0: typing.Any) -> None:
    ...
def readBit(number: typing.Any, index: typing.Any) -> int:
    ...
def writeBit(number: typing.Any, index: typing.Any, value: typing.Any) -> int:
    ...
AHRS_START: int = 9217
BROADCAST_CMD_LIST: list = [252, 253, 254]
CHECK_MAC_AND_REBOOT: int = 254
CHECK_MAC_AND_SET_IP: int = 253
CMD_CR: int = 13
CMD_CR_2: int = 13
CMD_INDEX: int = 3
CMD_INDEX_2: int = 3
CMD_LF: int = 10
CMD_LF_2: int = 10
CMD_STX: int = 2
CMD_STX_2: int = 2
CONNECTION_TIMEOUT: int = 5
ECHO_DELAY: float = 0.01
GET_DEVICE_INFO: int = 252
GET_DRIVER_INFO: int = 240
HANDLE_DICT: dict = {'utilities': ['DeviceFinder', 'DataLogger'], 'wireless': ['HeronAinImu', 'HeronAin', 'HeronAinPlus'], 'ethernet': ['Trellis', 'MerlinDrive', 'MerlinAxis', 'KestrelAin', 'KestrelDio', 'KestrelDioX', 'KestrelCin', 'KestrelCvin', 'KestrelRelay', 'KestrelAout', 'KestrelRes', 'KestrelTherm'], 'USB': ['PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverSink', 'PloverAio', 'PloverRtd']}
HANDLE_LIST: list = ['DeviceFinder', 'DataLogger', 'HeronAinImu', 'HeronAin', 'HeronAinPlus', 'Trellis', 'MerlinDrive', 'MerlinAxis', 'KestrelAin', 'KestrelDio', 'KestrelDioX', 'KestrelCin', 'KestrelCvin', 'KestrelRelay', 'KestrelAout', 'KestrelRes', 'KestrelTherm', 'PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverSink', 'PloverAio', 'PloverRtd']
LABEL_DICT: dict = {'utilities': 'Utilities', 'wireless': 'Wifi devices', 'ethernet': 'Ethernet devices', 'USB': 'USB devices', 'product_list': 'Products Usage', 'DeviceFinder': 'Device finder', 'DataLogger': 'Data logger', 'HeronAinImu': 'Heron-Ain-Imu', 'HeronAin': 'Heron-Ain', 'HeronAinPlus': 'Heron-Ain-Plus', 'Trellis': 'Trellis', 'TrellisLite': 'Trellis-Lite', 'MerlinDrive': 'Merlin-Drive', 'MerlinAxis': 'Merlin-Axis', 'KestrelAin': 'Kestrel-Ain', 'KestrelDio': 'Kestrel-Dio', 'KestrelDioX': 'Kestrel-Dio_X', 'KestrelCin': 'Kestrel-Cin', 'KestrelCvin': 'Kestrel-Cvin', 'KestrelRelay': 'Kestrel-Relay', 'KestrelAout': 'Kestrel-Aout', 'KestrelRes': 'Kestrel-Res', 'KestrelTherm': 'Kestrel-Therm', 'PloverDio': 'Plover-Dio', 'PloverAin': 'Plover-Ain', 'PloverTc': 'Plover-Tc', 'PloverCan': 'Plover-Can', 'PloverSink': 'Plover-Sink', 'PloverAio': 'Plover-Aio', 'PloverRtd': 'Plover-Rtd'}
MOTION: int = 208
NUM_BCST_RETRIES: int = 3
NUM_RETRIES: int = 3
OPEN_CAN: int = 48
PACKET_TIMEOUT: int = 5
PRODUCT_LIST: list = ['HeronAinImu', 'HeronAin', 'HeronAinPlus', 'Trellis', 'MerlinDrive', 'MerlinAxis', 'KestrelAin', 'KestrelDio', 'KestrelDioX', 'KestrelCin', 'KestrelCvin', 'KestrelRelay', 'KestrelAout', 'KestrelRes', 'KestrelTherm', 'PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverSink', 'PloverAio', 'PloverRtd']
QUEUE_SIZE_MAX: int = 1000000
QUEUE_TIMEOUT: int = 999999
RETRY_TIMEOUT: int = 1
START_AI_STREAMING: int = 183
START_AI_STREAMING_VARIABLE: int = 190
START_AO_STREAMING: int = 8265
START_CAN: int = 49
START_MOTION_MONITORING: int = 7216
START_UART_READING: int = 129
STREAMING_CMD_LIST: list = [49, 129, 183, 190, 8265, 7216, 9217]
TCP_CMD_PORT: int = 7
TCP_DATA_LENGTH_MAX: int = 9606
TCP_DATA_PORT: int = 1336
TCP_PKT_LENGTH_MAX: int = 1536
UDP_PKT_LENGTH_MAX: int = 512
UDP_RECV_PORT: int = 6667
UDP_SEND_PORT: int = 61557
USB_61E_PLUS_PID: int = 60032
USB_61E_PLUS_VID: int = 4292
USB_61E_RECEIVE_BYTE: int = 2
USB_61E_RECEIVE_TIMEOUT: int = 200
USB_61E_RECEIVE_TOTAL_BYTES: int = 19
USB_EP_IN: int = 129
USB_EP_OUT: int = 1
USB_PID: int = 22352
USB_PKT_SIZE: int = 64
USB_VID: int = 1155
__version__: str = '3.0.19'
errAHRSMode: int = -8401
errAHRSPort: int = -8400
errAIChannel: int = -8200
errAIChip: int = -8202
errAIMode: int = -8203
errAIPort: int = -8201
errAIRate: int = -8204
errAOChannel: int = -8303
errAOForm: int = -8304
errAOMode: int = -8301
errAOPort: int = -8300
errAORate: int = -8305
errAOSpan: int = -8302
errAPINotSupport: int = -8000
errCANDataLength: int = -8902
errCANPort: int = -8900
errCANSpeed: int = -8901
errCANTX: int = -8903
errCANTXPriority: int = -8904
errCounterchannel: int = -8103
errDIPort: int = -8100
errDOPort: int = -8101
errDPOTChannel: int = -9301
errDPOTPort: int = -9300
errDeviceClosed: int = -8091
errFirmwareAI: int = -7017
errFirmwareAO: int = -7018
errFirmwareBootloader: int = -7026
errFirmwareCAN: int = -7022
errFirmwareCore: int = -7014
errFirmwareDIO: int = -7015
errFirmwareDrive: int = -7020
errFirmwareEEPROM: int = -7012
errFirmwareEnable: int = -7000
errFirmwareEncoder: int = -7011
errFirmwareHALIndex: int = -7002
errFirmwareI2C: int = -7005
errFirmwareMotion: int = -7019
errFirmwareOLED: int = -7013
errFirmwareORVIndex: int = -7003
errFirmwareOther: int = -7028
errFirmwarePWM: int = -7009
errFirmwareParser: int = -7027
errFirmwarePinIndex: int = -7001
errFirmwarePulse: int = -7010
errFirmwareRTC: int = -7004
errFirmwareRelay: int = -7016
errFirmwareSPI: int = -7006
errFirmwareTCP: int = -7024
errFirmwareTIM: int = -7008
errFirmwareThermal: int = -7021
errFirmwareUART: int = -7007
errFirmwareUDP: int = -7025
errFirmwareUSB: int = -7023
errI2CAddressSize: int = -8602
errI2CClock: int = -8601
errI2CPort: int = -8600
errIniFileName: int = -8010
errIniFileNotFound: int = -8011
errInputDataNotInRange: int = -8009
errInputTypeNotConsistent: int = -8007
errInputTypeNotCorrect: int = -8008
errLinkNotOpen: int = -8090
errMotionAccelerationMode: int = -9113
errMotionAxis: int = -9100
errMotionBreakPoint: int = -9111
errMotionCaptureMode: int = -9110
errMotionCaptureType: int = -9109
errMotionDirection: int = -9107
errMotionEnable: int = -9105
errMotionOperationMode: int = -9112
errMotionPolarity: int = -9108
errMotionPort: int = -9101
errMotionSearchDirection: int = -9104
errMotionSearchType: int = -9103
errMotionStepperOutput: int = -9106
errMotionStopMode: int = -9102
errNetConnection: int = -8002
errNetConnectionLost: int = -8003
errPWMchannel: int = -8102
errPacketTimeout: int = -8004
errPinsNotExist: int = -8005
errPinsValueNotDefine: int = -8006
errRelayIndex: int = -8104
errReplyFormat: int = -8092
errSPIDataLengthExceedMax: int = -8701
errSPIDataSize: int = -8702
errSPIFirstBit: int = -8703
errSPIMode: int = -8705
errSPIPort: int = -8700
errSPIPrescaler: int = -8704
errThermalChipSelect: int = -8501
errThermalMode: int = -8502
errThermalPort: int = -8500
errThermalType: int = -8503
errTrellisSlot: int = -9200
errUARTBaudRate: int = -8802
errUARTDataBit: int = -8805
errUARTExceedMaxLength: int = -8801
errUARTParity: int = -8804
errUARTPort: int = -8800
errUARTStopBit: int = -8803
errUSBConnection: int = -8001
warnAHRSOverflow: int = 520003
warnAIOverflow: int = 520000
warnCANOverflow: int = 520002
warnLibNotFound: int = 519000
warnUARTOverflow: int = 520001
