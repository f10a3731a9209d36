"""
ORV Python driver: the compiled core
"""
from __future__ import annotations
import collections.abc
import typing
from . import _sim
__all__: list[str] = ['AHRSModeNotAvaliableError', 'AHRSPortNotAvaliableError', 'AHRSQueueOverflowWarning', 'AHRS_START', 'AI24BitModule', 'AICSNotAvaliableError', 'AIChannelNotAvaliableError', 'AIModeNotAvaliableError', 'AIModule', 'AIPortNotAvaliableError', 'AIQueueOverflowWarning', 'AIRateNotVaildError', 'AOChannelNotAvaliableError', 'AOFormNotAvaliableError', 'AOModeNotVaildError', 'AOModule', 'AOPortNotAvaliableError', 'AORateNotVaildError', 'AOSpanNotVaildError', 'APINotSupportError', 'BROADCAST_CMD_LIST', 'BroadcastDevice', 'BroadcastModule', 'CANDataLengthNotVaildError', 'CANPortNotAvaliableError', 'CANQueueOverflowWarning', 'CANSpeedNotVaildError', 'CANTXNotVaildError', 'CANTXPriorityNotVaildError', 'CHECK_MAC_AND_REBOOT', 'CHECK_MAC_AND_SET_IP', 'CMD_CR', 'CMD_CR_2', 'CMD_INDEX', 'CMD_INDEX_2', 'CMD_LF', 'CMD_LF_2', 'CMD_STX', 'CMD_STX_2', 'CONNECTION_TIMEOUT', 'Client', 'CounterChannelNotAvaliableError', 'CounterModule', 'DIOModule', 'DIPortNotAvaliableError', 'DOPortNotAvaliableError', 'DPOTChannelNotAvaliableError', 'DPOTModule', 'DPOTPortNotAvaliableError', 'Device', 'DeviceClosedError', 'DeviceFinder', 'ECHO_DELAY', 'ETHDevice', 'Error', 'ExtLibNotFoundWarning', 'FirmwareAIError', 'FirmwareAOError', 'FirmwareBootloaderError', 'FirmwareCANError', 'FirmwareCoreError', 'FirmwareDIOError', 'FirmwareDriveError', 'FirmwareEEPROMError', 'FirmwareEnableError', 'FirmwareEncoderError', 'FirmwareHALIndexError', 'FirmwareI2CError', 'FirmwareMotionError', 'FirmwareOLEDError', 'FirmwareORVIndexError', 'FirmwareOtherError', 'FirmwarePWMError', 'FirmwareParserError', 'FirmwarePinIndexError', 'FirmwarePulseError', 'FirmwareRTCError', 'FirmwareRelayError', 'FirmwareSPIError', 'FirmwareTCPError', 'FirmwareTIMError', 'FirmwareThermalError', 'FirmwareUARTError', 'FirmwareUDPError', 'FirmwareUSBError', 'GET_DEVICE_INFO', 'GET_DRIVER_INFO', 'HANDLE_DICT', 'HANDLE_LIST', 'HeronAin', 'HeronAinImu', 'HeronAinPlus', 'I2CAddressSizeNotVaildError', 'I2CClockNotSupportError', 'I2CModule', 'I2CPortNotAvaliableError', 'IniFileExtensionNameError', 'IniFileNotFoundError', 'InputDataNotInRangeError', 'InputTypeNotConsistentError', 'InputTypeNotCorrectError', 'KestrelAin', 'KestrelAout', 'KestrelCin', 'KestrelCvin', 'KestrelDio', 'KestrelDioX', 'KestrelRelay', 'KestrelRes', 'KestrelTherm', 'LABEL_DICT', 'LinkNotOpenError', 'MOTION', 'MRDRPortNotAvaliable', 'MerlinAxis', 'MerlinDrive', 'MotionAccelerationModeError', 'MotionAxisError', 'MotionBreakPointModeError', 'MotionCaptureModeError', 'MotionCaptureTypeError', 'MotionDirectionError', 'MotionEnableError', 'MotionOperationModeError', 'MotionPolarityError', 'MotionPortNotAvaliable', 'MotionSearchDirectionError', 'MotionSearchTypeError', 'MotionStepperOutputError', 'MotionStopModeError', 'NUM_BCST_RETRIES', 'NUM_RETRIES', 'NetworkClient', 'NetworkConnectionError', 'NetworkConnectionLostError', 'NetworkDevice', 'NetworkModule', 'OPEN_CAN', 'ORVWarning', 'PACKET_TIMEOUT', 'PRODUCT_LIST', 'PWMChannelNotAvaliableError', 'PWMModule', 'PinsNotExistError', 'PinsValueNotDefineError', 'PloverAin', 'PloverAio', 'PloverCan', 'PloverDio', 'PloverRtd', 'PloverSink', 'PloverTc', 'QUEUE_SIZE_MAX', 'QUEUE_TIMEOUT', 'RETRY_TIMEOUT', 'ReceivePacketTimeoutError', 'RelayCounterIndexError', 'RelayModule', 'ReplyFormatError', 'SPIDataLengthExceedMaxError', 'SPIDataSizeNotVaildError', 'SPIFirstBitNotVaildError', 'SPIModeNotVaildError', 'SPIModule', 'SPIPortNotAvaliableError', 'SPIPrescalerNotVaildError', 'START_AI_STREAMING', 'START_AI_STREAMING_VARIABLE', 'START_AO_STREAMING', 'START_CAN', 'START_MOTION_MONITORING', 'START_UART_READING', 'STREAMING_CMD_LIST', 'StreamQueue', 'SystemAnalogModule', 'SystemModule', 'TCPClient', 'TCP_CMD_PORT', 'TCP_DATA_LENGTH_MAX', 'TCP_DATA_PORT', 'TCP_PKT_LENGTH_MAX', 'ThermalChipSelectNotAvaliableError', 'ThermalModeNotVaildError', 'ThermalPortNotAvaliableError', 'ThermalTypeNotVaildError', 'Trellis', 'TrellisLite', 'TrellisPortNotAvaliableError', 'UARTBaudRateNotSupportError', 'UARTDataBitNotSupportError', 'UARTExceedMaxLengthError', 'UARTParityNotSupportError', 'UARTPortNotAvaliableError', 'UARTQueueOverflowWarning', 'UARTStopBitNotSupportError', 'UDPClient', 'UDP_PKT_LENGTH_MAX', 'UDP_RECV_PORT', 'UDP_SEND_PORT', 'USBClient', 'USBConnectionError', 'USBDevice', 'USB_61E_PLUS_PID', 'USB_61E_PLUS_VID', 'USB_61E_RECEIVE_BYTE', 'USB_61E_RECEIVE_TIMEOUT', 'USB_61E_RECEIVE_TOTAL_BYTES', 'USB_EP_IN', 'USB_EP_OUT', 'USB_PID', 'USB_PKT_SIZE', 'USB_VID', 'WifiDevice', 'WifiModule', 'adjustDataList', 'changeToTrellisPort', 'checkEachItemInRange', 'checkFirmwareError', 'checkFuncPinMap', 'checkInputType', 'checkInputTypeConsistent', 'checkPinMap', 'clearBit', 'coerce', 'convert2U8ToI16', 'convert2U8ToU16', 'convert4U8ToF32', 'convert4U8ToI32', 'convert4U8ToU32', 'convert8U8ToF64', 'convert8U8ToI64', 'convert8U8ToU64', 'convertF32To4U8', 'convertF64To8U8', 'convertI16To2U8', 'convertI32To4U8', 'convertI64To8U8', 'convertIPAddrTo4U8', 'convertIndexAndBinaryListsToInt', 'convertIndexListToInt', 'convertIntToBinaryList', 'convertIntToIndexList', 'convertMACAddrTo6U8', 'convertStrToU8List', 'convertU16To2U8', 'convertU32To4U8', 'convertU64To8U8', 'convertU8ListToStr', 'errAHRSMode', 'errAHRSPort', 'errAIChannel', 'errAIChip', 'errAIMode', 'errAIPort', 'errAIRate', 'errAOChannel', 'errAOForm', 'errAOMode', 'errAOPort', 'errAORate', 'errAOSpan', 'errAPINotSupport', 'errCANDataLength', 'errCANPort', 'errCANSpeed', 'errCANTX', 'errCANTXPriority', 'errCounterchannel', 'errDIPort', 'errDOPort', 'errDPOTChannel', 'errDPOTPort', 'errDeviceClosed', 'errFirmwareAI', 'errFirmwareAO', 'errFirmwareBootloader', 'errFirmwareCAN', 'errFirmwareCore', 'errFirmwareDIO', 'errFirmwareDrive', 'errFirmwareEEPROM', 'errFirmwareEnable', 'errFirmwareEncoder', 'errFirmwareHALIndex', 'errFirmwareI2C', 'errFirmwareMotion', 'errFirmwareOLED', 'errFirmwareORVIndex', 'errFirmwareOther', 'errFirmwarePWM', 'errFirmwareParser', 'errFirmwarePinIndex', 'errFirmwarePulse', 'errFirmwareRTC', 'errFirmwareRelay', 'errFirmwareSPI', 'errFirmwareTCP', 'errFirmwareTIM', 'errFirmwareThermal', 'errFirmwareUART', 'errFirmwareUDP', 'errFirmwareUSB', 'errI2CAddressSize', 'errI2CClock', 'errI2CPort', 'errIniFileName', 'errIniFileNotFound', 'errInputDataNotInRange', 'errInputTypeNotConsistent', 'errInputTypeNotCorrect', 'errLinkNotOpen', 'errMotionAccelerationMode', 'errMotionAxis', 'errMotionBreakPoint', 'errMotionCaptureMode', 'errMotionCaptureType', 'errMotionDirection', 'errMotionEnable', 'errMotionOperationMode', 'errMotionPolarity', 'errMotionPort', 'errMotionSearchDirection', 'errMotionSearchType', 'errMotionStepperOutput', 'errMotionStopMode', 'errNetConnection', 'errNetConnectionLost', 'errPWMchannel', 'errPacketTimeout', 'errPinsNotExist', 'errPinsValueNotDefine', 'errRelayIndex', 'errReplyFormat', 'errSPIDataLengthExceedMax', 'errSPIDataSize', 'errSPIFirstBit', 'errSPIMode', 'errSPIPort', 'errSPIPrescaler', 'errThermalChipSelect', 'errThermalMode', 'errThermalPort', 'errThermalType', 'errTrellisSlot', 'errUARTBaudRate', 'errUARTDataBit', 'errUARTExceedMaxLength', 'errUARTParity', 'errUARTPort', 'errUARTStopBit', 'errUSBConnection', 'fillBit', 'printGenericError', 'readBit', 'warnAHRSOverflow', 'warnAIOverflow', 'warnCANOverflow', 'warnLibNotFound', 'warnUARTOverflow', 'writeBit']
class Error(Exception):
    """
    The driver's errors: each class has its fixed code and default message.
    
    Error(code, msg): str(err) is "Error {code}: {msg}".
    """
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
    """
    The driver's warnings (the motion family, queue overflows): each class has its fixed code and default message.
    
    ORVWarning(code, msg, silent=False): reports itself with the stack unless silent; str(w) is "Warning {code}: {msg}".
    """
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
    """
    APINotSupportError: error code -8000 (pyorv.errAPINotSupport).
    
    Default message: "In this product, there is no support for this API."
    """
    code: typing.ClassVar[int] = -8000
    default_message: typing.ClassVar[str] = 'In this product, there is no support for this API.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class USBConnectionError(Error):
    """
    USBConnectionError: error code -8001 (pyorv.errUSBConnection).
    
    Default message: "Failed to connect to ORV DAQ. Please check USB plugin status and serial number."
    """
    code: typing.ClassVar[int] = -8001
    default_message: typing.ClassVar[str] = 'Failed to connect to ORV DAQ. Please check USB plugin status and serial number.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class NetworkConnectionError(Error):
    """
    NetworkConnectionError: error code -8002 (pyorv.errNetConnection).
    
    Default message: "Failed to connect to ORV DAQ. Please check network status and IP address."
    """
    code: typing.ClassVar[int] = -8002
    default_message: typing.ClassVar[str] = 'Failed to connect to ORV DAQ. Please check network status and IP address.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class NetworkConnectionLostError(Error):
    """
    NetworkConnectionLostError: error code -8003 (pyorv.errNetConnectionLost).
    
    Default message: "Network DAQ connection lost."
    """
    code: typing.ClassVar[int] = -8003
    default_message: typing.ClassVar[str] = 'Network DAQ connection lost.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ReceivePacketTimeoutError(Error, TimeoutError):
    """
    ReceivePacketTimeoutError: error code -8004 (pyorv.errPacketTimeout).
    
    Default message: "Receive packet timeout."
    """
    code: typing.ClassVar[int] = -8004
    default_message: typing.ClassVar[str] = 'Receive packet timeout.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class PinsNotExistError(Error):
    """
    PinsNotExistError: error code -8005 (pyorv.errPinsNotExist).
    
    Default message: "The pin index is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8005
    default_message: typing.ClassVar[str] = 'The pin index is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class PinsValueNotDefineError(Error):
    """
    PinsValueNotDefineError: error code -8006 (pyorv.errPinsValueNotDefine).
    
    Default message: "Inconsistency between the number of pins & the number of values."
    """
    code: typing.ClassVar[int] = -8006
    default_message: typing.ClassVar[str] = 'Inconsistency between the number of pins & the number of values.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class InputTypeNotConsistentError(Error):
    """
    InputTypeNotConsistentError: error code -8007 (pyorv.errInputTypeNotConsistent).
    
    Default message: "Inconsistency between the type of pins & the type of values."
    """
    code: typing.ClassVar[int] = -8007
    default_message: typing.ClassVar[str] = 'Inconsistency between the type of pins & the type of values.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class InputTypeNotCorrectError(Error):
    """
    InputTypeNotCorrectError: error code -8008 (pyorv.errInputTypeNotCorrect).
    
    Default message: "The data type is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8008
    default_message: typing.ClassVar[str] = 'The data type is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class InputDataNotInRangeError(Error):
    """
    InputDataNotInRangeError: error code -8009 (pyorv.errInputDataNotInRange).
    
    Default message: "The input value is not the acceptable range."
    """
    code: typing.ClassVar[int] = -8009
    default_message: typing.ClassVar[str] = 'The input value is not the acceptable range.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class IniFileExtensionNameError(Error):
    """
    IniFileExtensionNameError: error code -8010 (pyorv.errIniFileName).
    
    Default message: "The Ini file extension name is not correct."
    """
    code: typing.ClassVar[int] = -8010
    default_message: typing.ClassVar[str] = 'The Ini file extension name is not correct.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class IniFileNotFoundError(Error):
    """
    IniFileNotFoundError: error code -8011 (pyorv.errIniFileNotFound).
    
    Default message: "No such file or directory."
    """
    code: typing.ClassVar[int] = -8011
    default_message: typing.ClassVar[str] = 'No such file or directory.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class DIPortNotAvaliableError(Error):
    """
    DIPortNotAvaliableError: error code -8100 (pyorv.errDIPort).
    
    Default message: "The DI port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -8100
    default_message: typing.ClassVar[str] = 'The DI port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class DOPortNotAvaliableError(Error):
    """
    DOPortNotAvaliableError: error code -8101 (pyorv.errDOPort).
    
    Default message: "The DO port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -8101
    default_message: typing.ClassVar[str] = 'The DO port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class PWMChannelNotAvaliableError(Error):
    """
    PWMChannelNotAvaliableError: error code -8102 (pyorv.errPWMchannel).
    
    Default message: "The PWM channel is not available."
    """
    code: typing.ClassVar[int] = -8102
    default_message: typing.ClassVar[str] = 'The PWM channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CounterChannelNotAvaliableError(Error):
    """
    CounterChannelNotAvaliableError: error code -8103 (pyorv.errCounterchannel).
    
    Default message: "The counter channel is not available."
    """
    code: typing.ClassVar[int] = -8103
    default_message: typing.ClassVar[str] = 'The counter channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class RelayCounterIndexError(Error):
    """
    RelayCounterIndexError: error code -8104 (pyorv.errRelayIndex).
    
    Default message: "The relay counter index error is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8104
    default_message: typing.ClassVar[str] = 'The relay counter index error is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AIChannelNotAvaliableError(Error):
    """
    AIChannelNotAvaliableError: error code -8200 (pyorv.errAIChannel).
    
    Default message: "The AI channel is not available."
    """
    code: typing.ClassVar[int] = -8200
    default_message: typing.ClassVar[str] = 'The AI channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AIPortNotAvaliableError(Error):
    """
    AIPortNotAvaliableError: error code -8201 (pyorv.errAIPort).
    
    Default message: "The AI port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -8201
    default_message: typing.ClassVar[str] = 'The AI port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AICSNotAvaliableError(Error):
    """
    AICSNotAvaliableError: error code -8202 (pyorv.errAIChip).
    
    Default message: "The AI chip is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8202
    default_message: typing.ClassVar[str] = 'The AI chip is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AIModeNotAvaliableError(Error):
    """
    AIModeNotAvaliableError: error code -8203 (pyorv.errAIMode).
    
    Default message: "The AI mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8203
    default_message: typing.ClassVar[str] = 'The AI mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AIRateNotVaildError(Error):
    """
    AIRateNotVaildError: error code -8204 (pyorv.errAIRate).
    
    Default message: "The AI sampling rate is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8204
    default_message: typing.ClassVar[str] = 'The AI sampling rate is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AOPortNotAvaliableError(Error):
    """
    AOPortNotAvaliableError: error code -8300 (pyorv.errAOPort).
    
    Default message: "The AO port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -8300
    default_message: typing.ClassVar[str] = 'The AO port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AOModeNotVaildError(Error):
    """
    AOModeNotVaildError: error code -8301 (pyorv.errAOMode).
    
    Default message: "The AO generation mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8301
    default_message: typing.ClassVar[str] = 'The AO generation mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AOSpanNotVaildError(Error):
    """
    AOSpanNotVaildError: error code -8302 (pyorv.errAOSpan).
    
    Default message: "The AO span mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8302
    default_message: typing.ClassVar[str] = 'The AO span mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AOChannelNotAvaliableError(Error):
    """
    AOChannelNotAvaliableError: error code -8303 (pyorv.errAOChannel).
    
    Default message: "The AO channel is not available."
    """
    code: typing.ClassVar[int] = -8303
    default_message: typing.ClassVar[str] = 'The AO channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AOFormNotAvaliableError(Error):
    """
    AOFormNotAvaliableError: error code -8304 (pyorv.errAOForm).
    
    Default message: "The AO form is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8304
    default_message: typing.ClassVar[str] = 'The AO form is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AORateNotVaildError(Error):
    """
    AORateNotVaildError: error code -8305 (pyorv.errAORate).
    
    Default message: "The AO sampling rate is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8305
    default_message: typing.ClassVar[str] = 'The AO sampling rate is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AHRSPortNotAvaliableError(Error):
    """
    AHRSPortNotAvaliableError: error code -8400 (pyorv.errAHRSPort).
    
    Default message: "The AHRS port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -8400
    default_message: typing.ClassVar[str] = 'The AHRS port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AHRSModeNotAvaliableError(Error):
    """
    AHRSModeNotAvaliableError: error code -8401 (pyorv.errAHRSMode).
    
    Default message: "The AHRS mode is not available."
    """
    code: typing.ClassVar[int] = -8401
    default_message: typing.ClassVar[str] = 'The AHRS mode is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ThermalPortNotAvaliableError(Error):
    """
    ThermalPortNotAvaliableError: error code -8500 (pyorv.errThermalPort).
    
    Default message: "The thermal port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -8500
    default_message: typing.ClassVar[str] = 'The thermal port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ThermalChipSelectNotAvaliableError(Error):
    """
    ThermalChipSelectNotAvaliableError: error code -8501 (pyorv.errThermalChipSelect).
    
    Default message: "The thermal channel is not available."
    """
    code: typing.ClassVar[int] = -8501
    default_message: typing.ClassVar[str] = 'The thermal channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ThermalModeNotVaildError(Error):
    """
    ThermalModeNotVaildError: error code -8502 (pyorv.errThermalMode).
    
    Default message: "The thermal filter mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8502
    default_message: typing.ClassVar[str] = 'The thermal filter mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ThermalTypeNotVaildError(Error):
    """
    ThermalTypeNotVaildError: error code -8503 (pyorv.errThermalType).
    
    Default message: "The thermal type mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8503
    default_message: typing.ClassVar[str] = 'The thermal type mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class I2CPortNotAvaliableError(Error):
    """
    I2CPortNotAvaliableError: error code -8600 (pyorv.errI2CPort).
    
    Default message: "The I2C port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -8600
    default_message: typing.ClassVar[str] = 'The I2C port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class I2CClockNotSupportError(Error):
    """
    I2CClockNotSupportError: error code -8601 (pyorv.errI2CClock).
    
    Default message: "The I2C clock mode is not available."
    """
    code: typing.ClassVar[int] = -8601
    default_message: typing.ClassVar[str] = 'The I2C clock mode is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class I2CAddressSizeNotVaildError(Error):
    """
    I2CAddressSizeNotVaildError: error code -8602 (pyorv.errI2CAddressSize).
    
    Default message: "The I2C address mode is not available."
    """
    code: typing.ClassVar[int] = -8602
    default_message: typing.ClassVar[str] = 'The I2C address mode is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIPortNotAvaliableError(Error):
    """
    SPIPortNotAvaliableError: error code -8700 (pyorv.errSPIPort).
    
    Default message: "The SPI port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -8700
    default_message: typing.ClassVar[str] = 'The SPI port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIDataLengthExceedMaxError(Error):
    """
    SPIDataLengthExceedMaxError: error code -8701 (pyorv.errSPIDataLengthExceedMax).
    
    Default message: "The length of data exceeds maximum transfer length of SPI."
    """
    code: typing.ClassVar[int] = -8701
    default_message: typing.ClassVar[str] = 'The length of data exceeds maximum transfer length of SPI.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIDataSizeNotVaildError(Error):
    """
    SPIDataSizeNotVaildError: error code -8702 (pyorv.errSPIDataSize).
    
    Default message: "The SPI data size mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8702
    default_message: typing.ClassVar[str] = 'The SPI data size mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIFirstBitNotVaildError(Error):
    """
    SPIFirstBitNotVaildError: error code -8703 (pyorv.errSPIFirstBit).
    
    Default message: "The SPI first bit mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8703
    default_message: typing.ClassVar[str] = 'The SPI first bit mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIPrescalerNotVaildError(Error):
    """
    SPIPrescalerNotVaildError: error code -8704 (pyorv.errSPIPrescaler).
    
    Default message: "The SPI prescaler mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8704
    default_message: typing.ClassVar[str] = 'The SPI prescaler mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class SPIModeNotVaildError(Error):
    """
    SPIModeNotVaildError: error code -8705 (pyorv.errSPIMode).
    
    Default message: "The SPI mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8705
    default_message: typing.ClassVar[str] = 'The SPI mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTPortNotAvaliableError(Error):
    """
    UARTPortNotAvaliableError: error code -8800 (pyorv.errUARTPort).
    
    Default message: "The UART port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -8800
    default_message: typing.ClassVar[str] = 'The UART port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTExceedMaxLengthError(Error):
    """
    UARTExceedMaxLengthError: error code -8801 (pyorv.errUARTExceedMaxLength).
    
    Default message: "The length of data exceeds maximum transfer length of UART."
    """
    code: typing.ClassVar[int] = -8801
    default_message: typing.ClassVar[str] = 'The length of data exceeds maximum transfer length of UART.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTBaudRateNotSupportError(Error):
    """
    UARTBaudRateNotSupportError: error code -8802 (pyorv.errUARTBaudRate).
    
    Default message: "The UART baud rate is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8802
    default_message: typing.ClassVar[str] = 'The UART baud rate is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTStopBitNotSupportError(Error):
    """
    UARTStopBitNotSupportError: error code -8803 (pyorv.errUARTStopBit).
    
    Default message: "The UART stop bit mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8803
    default_message: typing.ClassVar[str] = 'The UART stop bit mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTParityNotSupportError(Error):
    """
    UARTParityNotSupportError: error code -8804 (pyorv.errUARTParity).
    
    Default message: "The UART parity mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8804
    default_message: typing.ClassVar[str] = 'The UART parity mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTDataBitNotSupportError(Error):
    """
    UARTDataBitNotSupportError: error code -8805 (pyorv.errUARTDataBit).
    
    Default message: "The UART data bit mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8805
    default_message: typing.ClassVar[str] = 'The UART data bit mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANPortNotAvaliableError(Error):
    """
    CANPortNotAvaliableError: error code -8900 (pyorv.errCANPort).
    
    Default message: "The CAN port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -8900
    default_message: typing.ClassVar[str] = 'The CAN port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANSpeedNotVaildError(Error):
    """
    CANSpeedNotVaildError: error code -8901 (pyorv.errCANSpeed).
    
    Default message: "The CAN speed mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8901
    default_message: typing.ClassVar[str] = 'The CAN speed mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANDataLengthNotVaildError(Error):
    """
    CANDataLengthNotVaildError: error code -8902 (pyorv.errCANDataLength).
    
    Default message: "The length of the specified CAN data is invalid."
    """
    code: typing.ClassVar[int] = -8902
    default_message: typing.ClassVar[str] = 'The length of the specified CAN data is invalid.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANTXNotVaildError(Error):
    """
    CANTXNotVaildError: error code -8903 (pyorv.errCANTX).
    
    Default message: "The CAN TX is not valid or is not recognized"
    """
    code: typing.ClassVar[int] = -8903
    default_message: typing.ClassVar[str] = 'The CAN TX is not valid or is not recognized'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANTXPriorityNotVaildError(Error):
    """
    CANTXPriorityNotVaildError: error code -8904 (pyorv.errCANTXPriority).
    
    Default message: "The CAN TX priority is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -8904
    default_message: typing.ClassVar[str] = 'The CAN TX priority is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class TrellisPortNotAvaliableError(Error):
    """
    TrellisPortNotAvaliableError: error code -9200 (pyorv.errTrellisSlot).
    
    Default message: "The Trellis slot is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -9200
    default_message: typing.ClassVar[str] = 'The Trellis slot is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class DPOTPortNotAvaliableError(Error):
    """
    DPOTPortNotAvaliableError: error code -9300 (pyorv.errDPOTPort).
    
    Default message: "The DPOT port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -9300
    default_message: typing.ClassVar[str] = 'The DPOT port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class DPOTChannelNotAvaliableError(Error):
    """
    DPOTChannelNotAvaliableError: error code -9301 (pyorv.errDPOTChannel).
    
    Default message: "The amount of DPOT channel is not available."
    """
    code: typing.ClassVar[int] = -9301
    default_message: typing.ClassVar[str] = 'The amount of DPOT channel is not available.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MRDRPortNotAvaliable(Error):
    """
    MRDRPortNotAvaliable: error code -8900.
    
    Default message: "The drive port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -8900
    default_message: typing.ClassVar[str] = 'The drive port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionAxisError(ORVWarning):
    """
    MotionAxisError: warning code -9100 (pyorv.errMotionAxis).
    
    Default message: "The motion axis is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9100
    default_message: typing.ClassVar[str] = 'The motion axis is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionPortNotAvaliable(ORVWarning):
    """
    MotionPortNotAvaliable: warning code -9101 (pyorv.errMotionPort).
    
    Default message: "The motion port is not available or is already occupied by another process."
    """
    code: typing.ClassVar[int] = -9101
    default_message: typing.ClassVar[str] = 'The motion port is not available or is already occupied by another process.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionStopModeError(ORVWarning):
    """
    MotionStopModeError: warning code -9102 (pyorv.errMotionStopMode).
    
    Default message: "The motion stop mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9102
    default_message: typing.ClassVar[str] = 'The motion stop mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionSearchTypeError(ORVWarning):
    """
    MotionSearchTypeError: warning code -9103 (pyorv.errMotionSearchType).
    
    Default message: "The motion search type is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9103
    default_message: typing.ClassVar[str] = 'The motion search type is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionSearchDirectionError(ORVWarning):
    """
    MotionSearchDirectionError: warning code -9104 (pyorv.errMotionSearchDirection).
    
    Default message: "The motion search direction is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9104
    default_message: typing.ClassVar[str] = 'The motion search direction is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionEnableError(ORVWarning):
    """
    MotionEnableError: warning code -9105 (pyorv.errMotionEnable).
    
    Default message: "The motion enable is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9105
    default_message: typing.ClassVar[str] = 'The motion enable is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionStepperOutputError(ORVWarning):
    """
    MotionStepperOutputError: warning code -9106 (pyorv.errMotionStepperOutput).
    
    Default message: "The motion stepper output is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9106
    default_message: typing.ClassVar[str] = 'The motion stepper output is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionDirectionError(ORVWarning):
    """
    MotionDirectionError: warning code -9107 (pyorv.errMotionDirection).
    
    Default message: "The motion direction is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9107
    default_message: typing.ClassVar[str] = 'The motion direction is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionPolarityError(ORVWarning):
    """
    MotionPolarityError: warning code -9108 (pyorv.errMotionPolarity).
    
    Default message: "The motion polarity is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9108
    default_message: typing.ClassVar[str] = 'The motion polarity is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionCaptureTypeError(ORVWarning):
    """
    MotionCaptureTypeError: warning code -9109 (pyorv.errMotionCaptureType).
    
    Default message: "The motion capture type is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9109
    default_message: typing.ClassVar[str] = 'The motion capture type is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionCaptureModeError(ORVWarning):
    """
    MotionCaptureModeError: warning code -9110 (pyorv.errMotionCaptureMode).
    
    Default message: "The motion capture mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9110
    default_message: typing.ClassVar[str] = 'The motion capture mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionBreakPointModeError(ORVWarning):
    """
    MotionBreakPointModeError: warning code -9111 (pyorv.errMotionBreakPoint).
    
    Default message: "The motion breakpoint mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9111
    default_message: typing.ClassVar[str] = 'The motion breakpoint mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionOperationModeError(ORVWarning):
    """
    MotionOperationModeError: warning code -9112 (pyorv.errMotionOperationMode).
    
    Default message: "The motion operation mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9112
    default_message: typing.ClassVar[str] = 'The motion operation mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class MotionAccelerationModeError(ORVWarning):
    """
    MotionAccelerationModeError: warning code -9113 (pyorv.errMotionAccelerationMode).
    
    Default message: "The motion acceleration mode is not valid or is not recognized."
    """
    code: typing.ClassVar[int] = -9113
    default_message: typing.ClassVar[str] = 'The motion acceleration mode is not valid or is not recognized.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareEnableError(Error):
    """
    FirmwareEnableError: error code -7000 (pyorv.errFirmwareEnable).
    
    Default message: "The functionality is not enabled in the firmware"
    """
    code: typing.ClassVar[int] = -7000
    default_message: typing.ClassVar[str] = 'The functionality is not enabled in the firmware'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwarePinIndexError(Error):
    """
    FirmwarePinIndexError: error code -7001 (pyorv.errFirmwarePinIndex).
    
    Default message: "The pin index error in the firmware."
    """
    code: typing.ClassVar[int] = -7001
    default_message: typing.ClassVar[str] = 'The pin index error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareHALIndexError(Error):
    """
    FirmwareHALIndexError: error code -7002 (pyorv.errFirmwareHALIndex).
    
    Default message: "The HAL handle index error in the firmware."
    """
    code: typing.ClassVar[int] = -7002
    default_message: typing.ClassVar[str] = 'The HAL handle index error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareORVIndexError(Error):
    """
    FirmwareORVIndexError: error code -7003 (pyorv.errFirmwareORVIndex).
    
    Default message: "The HAL error in the firmware."
    """
    code: typing.ClassVar[int] = -7003
    default_message: typing.ClassVar[str] = 'The HAL error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareRTCError(Error):
    """
    FirmwareRTCError: error code -7004 (pyorv.errFirmwareRTC).
    
    Default message: "The RTC error in the firmware."
    """
    code: typing.ClassVar[int] = -7004
    default_message: typing.ClassVar[str] = 'The RTC error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareI2CError(Error):
    """
    FirmwareI2CError: error code -7005 (pyorv.errFirmwareI2C).
    
    Default message: "The I2C error in the firmware."
    """
    code: typing.ClassVar[int] = -7005
    default_message: typing.ClassVar[str] = 'The I2C error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareSPIError(Error):
    """
    FirmwareSPIError: error code -7006 (pyorv.errFirmwareSPI).
    
    Default message: "The SPI error in the firmware."
    """
    code: typing.ClassVar[int] = -7006
    default_message: typing.ClassVar[str] = 'The SPI error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareUARTError(Error):
    """
    FirmwareUARTError: error code -7007 (pyorv.errFirmwareUART).
    
    Default message: "The UART error in the firmware."
    """
    code: typing.ClassVar[int] = -7007
    default_message: typing.ClassVar[str] = 'The UART error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareTIMError(Error):
    """
    FirmwareTIMError: error code -7008 (pyorv.errFirmwareTIM).
    
    Default message: "The Time error in the firmware."
    """
    code: typing.ClassVar[int] = -7008
    default_message: typing.ClassVar[str] = 'The Time error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwarePWMError(Error):
    """
    FirmwarePWMError: error code -7009 (pyorv.errFirmwarePWM).
    
    Default message: "The PWM error in the firmware."
    """
    code: typing.ClassVar[int] = -7009
    default_message: typing.ClassVar[str] = 'The PWM error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwarePulseError(Error):
    """
    FirmwarePulseError: error code -7010 (pyorv.errFirmwarePulse).
    
    Default message: "The pulse counter error in the firmware."
    """
    code: typing.ClassVar[int] = -7010
    default_message: typing.ClassVar[str] = 'The pulse counter error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareEncoderError(Error):
    """
    FirmwareEncoderError: error code -7011 (pyorv.errFirmwareEncoder).
    
    Default message: "The encoder counter error in the firmware."
    """
    code: typing.ClassVar[int] = -7011
    default_message: typing.ClassVar[str] = 'The encoder counter error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareEEPROMError(Error):
    """
    FirmwareEEPROMError: error code -7012 (pyorv.errFirmwareEEPROM).
    
    Default message: "The EEPROM error in the firmware."
    """
    code: typing.ClassVar[int] = -7012
    default_message: typing.ClassVar[str] = 'The EEPROM error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareOLEDError(Error):
    """
    FirmwareOLEDError: error code -7013 (pyorv.errFirmwareOLED).
    
    Default message: "The OLED error in the firmware."
    """
    code: typing.ClassVar[int] = -7013
    default_message: typing.ClassVar[str] = 'The OLED error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareCoreError(Error):
    """
    FirmwareCoreError: error code -7014 (pyorv.errFirmwareCore).
    
    Default message: "The Core error in the firmware."
    """
    code: typing.ClassVar[int] = -7014
    default_message: typing.ClassVar[str] = 'The Core error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareDIOError(Error):
    """
    FirmwareDIOError: error code -7015 (pyorv.errFirmwareDIO).
    
    Default message: "The DIO error in the firmware."
    """
    code: typing.ClassVar[int] = -7015
    default_message: typing.ClassVar[str] = 'The DIO error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareRelayError(Error):
    """
    FirmwareRelayError: error code -7016 (pyorv.errFirmwareRelay).
    
    Default message: "The relay error in the firmware."
    """
    code: typing.ClassVar[int] = -7016
    default_message: typing.ClassVar[str] = 'The relay error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareAIError(Error):
    """
    FirmwareAIError: error code -7017 (pyorv.errFirmwareAI).
    
    Default message: "The AI error in the firmware."
    """
    code: typing.ClassVar[int] = -7017
    default_message: typing.ClassVar[str] = 'The AI error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareAOError(Error):
    """
    FirmwareAOError: error code -7018 (pyorv.errFirmwareAO).
    
    Default message: "The AO error in the firmware."
    """
    code: typing.ClassVar[int] = -7018
    default_message: typing.ClassVar[str] = 'The AO error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareMotionError(Error):
    """
    FirmwareMotionError: error code -7019 (pyorv.errFirmwareMotion).
    
    Default message: "The motion error in the firmware."
    """
    code: typing.ClassVar[int] = -7019
    default_message: typing.ClassVar[str] = 'The motion error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareDriveError(Error):
    """
    FirmwareDriveError: error code -7020 (pyorv.errFirmwareDrive).
    
    Default message: "The drive error in the firmware."
    """
    code: typing.ClassVar[int] = -7020
    default_message: typing.ClassVar[str] = 'The drive error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareThermalError(Error):
    """
    FirmwareThermalError: error code -7021 (pyorv.errFirmwareThermal).
    
    Default message: "The thermal error in the firmware."
    """
    code: typing.ClassVar[int] = -7021
    default_message: typing.ClassVar[str] = 'The thermal error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareCANError(Error):
    """
    FirmwareCANError: error code -7022 (pyorv.errFirmwareCAN).
    
    Default message: "The CAN error in the firmware."
    """
    code: typing.ClassVar[int] = -7022
    default_message: typing.ClassVar[str] = 'The CAN error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareUSBError(Error):
    """
    FirmwareUSBError: error code -7023 (pyorv.errFirmwareUSB).
    
    Default message: "The USB read/write error in the firmware."
    """
    code: typing.ClassVar[int] = -7023
    default_message: typing.ClassVar[str] = 'The USB read/write error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareTCPError(Error):
    """
    FirmwareTCPError: error code -7024 (pyorv.errFirmwareTCP).
    
    Default message: "The TCP read/write error in the firmware."
    """
    code: typing.ClassVar[int] = -7024
    default_message: typing.ClassVar[str] = 'The TCP read/write error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareUDPError(Error):
    """
    FirmwareUDPError: error code -7025 (pyorv.errFirmwareUDP).
    
    Default message: "The UDP read/write error in the firmware."
    """
    code: typing.ClassVar[int] = -7025
    default_message: typing.ClassVar[str] = 'The UDP read/write error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareBootloaderError(Error):
    """
    FirmwareBootloaderError: error code -7026 (pyorv.errFirmwareBootloader).
    
    Default message: "The bootloader error in the firmware."
    """
    code: typing.ClassVar[int] = -7026
    default_message: typing.ClassVar[str] = 'The bootloader error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareParserError(Error):
    """
    FirmwareParserError: error code -7027 (pyorv.errFirmwareParser).
    
    Default message: "The parser error in the firmware."
    """
    code: typing.ClassVar[int] = -7027
    default_message: typing.ClassVar[str] = 'The parser error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class FirmwareOtherError(Error):
    """
    FirmwareOtherError: error code -7028 (pyorv.errFirmwareOther).
    
    Default message: "The other error in the firmware."
    """
    code: typing.ClassVar[int] = -7028
    default_message: typing.ClassVar[str] = 'The other error in the firmware.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ExtLibNotFoundWarning(ORVWarning):
    """
    ExtLibNotFoundWarning: warning code 519000 (pyorv.warnLibNotFound).
    
    Default message: "External library "libusb-1.0.dll" not found at indicated path will look at the default path instead"
    """
    code: typing.ClassVar[int] = 519000
    default_message: typing.ClassVar[str] = 'External library "libusb-1.0.dll" not found at indicated path will look at the default path instead'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AIQueueOverflowWarning(ORVWarning):
    """
    AIQueueOverflowWarning: warning code 520000 (pyorv.warnAIOverflow).
    
    Default message: "Occurrence AI queue overflow."
    """
    code: typing.ClassVar[int] = 520000
    default_message: typing.ClassVar[str] = 'Occurrence AI queue overflow.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class UARTQueueOverflowWarning(ORVWarning):
    """
    UARTQueueOverflowWarning: warning code 520001 (pyorv.warnUARTOverflow).
    
    Default message: "Occurrence UART queue overflow."
    """
    code: typing.ClassVar[int] = 520001
    default_message: typing.ClassVar[str] = 'Occurrence UART queue overflow.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class CANQueueOverflowWarning(ORVWarning):
    """
    CANQueueOverflowWarning: warning code 520002 (pyorv.warnCANOverflow).
    
    Default message: "Occurrence CAN queue overflow."
    """
    code: typing.ClassVar[int] = 520002
    default_message: typing.ClassVar[str] = 'Occurrence CAN queue overflow.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class AHRSQueueOverflowWarning(ORVWarning):
    """
    AHRSQueueOverflowWarning: warning code 520003 (pyorv.warnAHRSOverflow).
    
    Default message: "Occurrence AHRS queue overflow."
    """
    code: typing.ClassVar[int] = 520003
    default_message: typing.ClassVar[str] = 'Occurrence AHRS queue overflow.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class LinkNotOpenError(Error):
    """
    LinkNotOpenError: error code -8090 (pyorv.errLinkNotOpen).
    
    Default message: "The link to the device is not open."
    """
    code: typing.ClassVar[int] = -8090
    default_message: typing.ClassVar[str] = 'The link to the device is not open.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class DeviceClosedError(Error):
    """
    DeviceClosedError: error code -8091 (pyorv.errDeviceClosed).
    
    Default message: "The device handle is closed."
    """
    code: typing.ClassVar[int] = -8091
    default_message: typing.ClassVar[str] = 'The device handle is closed.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class ReplyFormatError(Error):
    """
    ReplyFormatError: error code -8092 (pyorv.errReplyFormat).
    
    Default message: "The reply of the device is malformed."
    """
    code: typing.ClassVar[int] = -8092
    default_message: typing.ClassVar[str] = 'The reply of the device is malformed.'
    @staticmethod
    def __init__(*args, **kwargs):
        """
        (self: object, msg: object = None, *args, **kwargs) -> None
        """
class Client:
    """
    A transport: bytes to and from one device link, split into packets.
    """
    def _splitPacket(self, data: typing.Any = []) -> list:
        ...
    def recvAndSplitPacket(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> list:
        """
        Receives up to length bytes and returns the complete packets, [cmd, data] each.
        """
    def recvPacket(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> bytes:
        """
        Receives up to length bytes as they come.
        """
    def sendPacket(self, arg0: typing.Any) -> None:
        """
        Sends the bytes of a whole packet.
        """
    @property
    def last_index(self) -> int:
        ...
    @property
    def stream(self) -> bytes:
        ...
class NetworkClient(Client):
    """
    A socket transport.
    """
    def disconnect(self) -> None:
        """
        Closes the socket.
        """
    def setTimeout(self, timeout: typing.SupportsFloat | typing.SupportsIndex | None = None) -> None:
        """
        Sets the socket's receive timeout in seconds; None waits without end.
        """
    @property
    def socket(self) -> int:
        ...
class TCPClient(NetworkClient):
    """
    A TCP transport.
    """
    def __init__(self) -> None:
        ...
    def connect(self, ip_addr: str, port: typing.SupportsInt | typing.SupportsIndex) -> bool:
        """
        Connects to a device's TCP port.
        """
class UDPClient(NetworkClient):
    """
    A UDP transport for discovery.
    """
    def __init__(self) -> None:
        ...
    def bind(self, ip_addr: str, port: typing.SupportsInt | typing.SupportsIndex) -> bool:
        """
        Binds the receiving socket (an empty ip_addr: every interface).
        """
    def sendBcstPacket(self, arg0: typing.Any) -> None:
        """
        Broadcasts a packet to the broadcast target from each local IPv4 address.
        """
    def setBroadcastTarget(self, host: str, port: typing.SupportsInt | typing.SupportsIndex = 61557) -> None:
        """
        Points the broadcasts at host:port (a loopback host sends from 127.0.0.1 only).
        """
    @property
    def broadcast_target(self) -> tuple[str, int]:
        ...
class USBClient(Client):
    """
    A USB transport.
    """
    def __init__(self, serial_num: str = 'default') -> None:
        ...
    def takeProductName(self) -> str:
        """
        The device's product name.
        """
    def takeSerialNumber(self) -> str:
        """
        The device's serial number.
        """
class StreamQueue:
    """
    The records of one stream, oldest first.
    """
    def empty(self) -> bool:
        """
        Whether no record waits.
        """
    def get_nowait(self) -> bytes:
        """
        Takes the oldest record; IndexError when none waits.
        """
    def put(self, arg0: typing.Any) -> None:
        """
        Adds a record.
        """
    def qsize(self) -> int:
        """
        How many records wait.
        """
class Device:
    """
    One device: its links, receive threads and reply pools. A `with` block closes it.
    """
    def __enter__(self) -> typing.Self:
        """
        The device itself; the block's end closes it.
        """
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
    """
    A device on USB.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
    def close(self, verbose: bool = True) -> None:
        """
        Closes the links and ends the receive threads; calls pending on the device end with DeviceClosedError.
        """
    def connect(self, serial_num: str = 'default', verbose: bool = True) -> None:
        """
        Opens the device with this serial number ("default": the first one found).
        """
    def disconnect(self, verbose: bool = True) -> None:
        """
        Closes the links; the object can connect again.
        """
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
    """
    A device on a TCP command link.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
    def close(self, verbose: bool = True) -> None:
        """
        Closes the links and ends the receive threads; calls pending on the device end with DeviceClosedError.
        """
    def connect(self, ip_addr: str = '192.168.1.110', port: typing.SupportsInt | typing.SupportsIndex = 7, verbose: bool = True) -> None:
        """
        Connects the command link to ip_addr:port and starts its receive thread.
        """
    def disconnect(self, verbose: bool = True) -> None:
        """
        Closes the links; the object can connect again.
        """
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
    """
    A device on Ethernet.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class WifiDevice(NetworkDevice):
    """
    A device on Wi-Fi: a data link and a command link.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
    def close(self, verbose: bool = True) -> None:
        """
        Closes the links and ends the receive threads; calls pending on the device end with DeviceClosedError.
        """
    def connect(self, ip: str = '192.168.5.79', port1: typing.SupportsInt | typing.SupportsIndex = 1336, port2: typing.SupportsInt | typing.SupportsIndex = 7, verbose: bool = True) -> bool:
        """
        Connects the data link to ip:port1 and the command link to ip:port2.
        """
    def disconnect(self, verbose: bool = True) -> None:
        """
        Closes the links; the object can connect again.
        """
    @property
    def client_data(self) -> TCPClient:
        ...
    @property
    def connect_status_data(self) -> bool:
        ...
class BroadcastDevice(Device):
    """
    The discovery side: a UDP socket for broadcasts and their answers. BroadcastDevice(verbose=True, broadcast_addr=None): broadcast_addr "host" or "host:port" points the broadcasts elsewhere (e.g. at loopback).
    """
    def __init__(self, verbose: bool = True, broadcast_addr: str | None = None) -> None:
        ...
    def close(self, verbose: bool = True) -> None:
        """
        Closes the links and ends the receive threads; calls pending on the device end with DeviceClosedError.
        """
    def connect(self, verbose: bool = True) -> None:
        """
        Binds the UDP socket that receives the answers and starts its receive thread.
        """
    def disconnect(self, verbose: bool = True) -> None:
        """
        Closes the links; the object can connect again.
        """
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
class AI24BitModule:
    """
    24-bit current and voltage inputs of KestrelCin and KestrelCvin.
    """
    def AI_readOnDemand(self, port: int, timeout: float = 3) -> list[float]:
        """
        Reads the eight 24-bit inputs of a port now.
        
        Args:
            port (int): 0 (current, mA) or on KestrelCvin 1 (voltage, V)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[float]: 8 values, 3 decimals: mA when the device answers for port 0, else V
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not one of the model's.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AI_readOnDemand_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[float]]:
        """
        Awaitable AI_readOnDemand, without timeout: Reads the eight 24-bit inputs of a port now.
        
        Args:
            port (int): 0 (current, mA) or on KestrelCvin 1 (voltage, V)
        
        Returns:
            list[float]: 8 values, 3 decimals: mA when the device answers for port 0, else V
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not one of the model's.
        """
    def _checkAI24BitPort(self, port: typing.Any) -> bool:
        ...
class AIModule:
    """
    16-bit analog inputs: on-demand reads, N-samples and continuous streams decoded by ai_stream_thread into samples of volts.
    """
    @staticmethod
    def _AI_changePortToIndex(port: typing.SupportsInt | typing.SupportsIndex, cs: typing.SupportsInt | typing.SupportsIndex) -> int:
        """
        The stream index of port 0, 1 or 3 and chip select 0..2.
        """
    @staticmethod
    def _checkAIChannel(channel: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkAIChipSelect(cs: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkAIMode(mode: typing.Any) -> bool:
        ...
    def AI_close(self, port: int, timeout: float = 3) -> int:
        """
        Closes the AI port and parks the decoder (KestrelAin and Trellis send nothing).
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AI_close_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AI_close, without timeout: Closes the AI port and parks the decoder (KestrelAin and Trellis send nothing).
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def AI_enableCS(self, slot: int, chip_select: list[int], timeout: float = 3) -> int:
        """
        Enables chip selects of a Trellis AI slot; samples then hold 8 values per chip.
        
        Args:
            slot (int): 1, 2 or 4
            chip_select (list[int]): chips 0..2, e.g. [0, 2]
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            APINotSupportError: on any model but Trellis.
            InputTypeNotCorrectError: slot or a chip is not an int.
            AIPortNotAvaliableError: slot is not 1, 2 or 4.
            AICSNotAvaliableError: a chip is not 0, 1 or 2.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AI_enableCS_async(self, slot: int, chip_select: list[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AI_enableCS, without timeout: Enables chip selects of a Trellis AI slot; samples then hold 8 values per chip.
        
        Args:
            slot (int): 1, 2 or 4
            chip_select (list[int]): chips 0..2, e.g. [0, 2]
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            APINotSupportError: on any model but Trellis.
            InputTypeNotCorrectError: slot or a chip is not an int.
            AIPortNotAvaliableError: slot is not 1, 2 or 4.
            AICSNotAvaliableError: a chip is not 0, 1 or 2.
        """
    def AI_enableChannel(self, port: int, channel: int, timeout: float = 3) -> int:
        """
        Enables channels 0 to channel-1; samples then hold that many values.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
            channel (int): how many channels, 1..8
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            APINotSupportError: on KestrelAin, Trellis, HeronAin and HeronAinPlus.
            InputTypeNotCorrectError: port or channel is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            AIChannelNotAvaliableError: channel is not in 1..8.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AI_enableChannel_async(self, port: int, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AI_enableChannel, without timeout: Enables channels 0 to channel-1; samples then hold that many values.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
            channel (int): how many channels, 1..8
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            APINotSupportError: on KestrelAin, Trellis, HeronAin and HeronAinPlus.
            InputTypeNotCorrectError: port or channel is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            AIChannelNotAvaliableError: channel is not in 1..8.
        """
    def AI_getPort(self) -> list[int]:
        """
        The AI ports of the model (on Trellis 0, 1, 3); nothing is sent.
        
        Returns:
            list[int]: the keys of ai_dict in order
        """
    def AI_getPort_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable AI_getPort, without timeout: The AI ports of the model (on Trellis 0, 1, 3); nothing is sent.
        
        Returns:
            list[int]: the keys of ai_dict in order
        """
    def AI_open(self, port: int, timeout: float = 3) -> int:
        """
        Opens the AI port and lets the decoder run (KestrelAin and Trellis send nothing).
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AI_open_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AI_open, without timeout: Opens the AI port and lets the decoder run (KestrelAin and Trellis send nothing).
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def AI_readOnDemand(self, port: int, timeout: float = 3) -> list[float]:
        """
        Reads one sample now.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[float]: volts, one per channel (per enabled chip select on Trellis), 4 decimals
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AI_readOnDemand_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[float]]:
        """
        Awaitable AI_readOnDemand, without timeout: Reads one sample now.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
        
        Returns:
            list[float]: volts, one per channel (per enabled chip select on Trellis), 4 decimals
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def AI_readStreaming(self, port: int, num_samples: int, delay: float = 0.005) -> list[list[float]]:
        """
        Takes decoded samples, waiting until num_samples are there or delay passed.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            num_samples (int): samples wanted
            delay (float): seconds to wait for them (default 0.005)
        
        Returns:
            list[list[float]]: samples, each a list of volts; fewer than asked when delay ran out
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def AI_readStreaming_async(self, port: int, num_samples: int, delay: float = 0.005) -> collections.abc.Coroutine[typing.Any, typing.Any, list[list[float]]]:
        """
        Awaitable AI_readStreaming, without timeout: Takes decoded samples, waiting until num_samples are there or delay passed.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            num_samples (int): samples wanted
            delay (float): seconds to wait for them (default 0.005)
        
        Returns:
            list[list[float]]: samples, each a list of volts; fewer than asked when delay ran out
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def AI_setMode(self, port: int, mode: int, timeout: float = 3) -> int:
        """
        Sets the acquisition mode.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            mode (int): 0 on demand, 1 N-samples, 2 continuous
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            AIModeNotAvaliableError: mode is not 0, 1 or 2.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AI_setMode_async(self, port: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AI_setMode, without timeout: Sets the acquisition mode.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            mode (int): 0 on demand, 1 N-samples, 2 continuous
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            AIModeNotAvaliableError: mode is not 0, 1 or 2.
        """
    def AI_setNumSamples(self, port: int, num_samples: int, timeout: float = 3) -> int:
        """
        Sets how many samples mode 1 acquires.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            num_samples (int): samples, sent as 32 bits
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: num_samples or port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AI_setNumSamples_async(self, port: int, num_samples: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AI_setNumSamples, without timeout: Sets how many samples mode 1 acquires.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            num_samples (int): samples, sent as 32 bits
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: num_samples or port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def AI_setSamplingRate(self, port: int, sampling_rate: float, timeout: float = 3) -> int:
        """
        Sets the sampling rate of modes 1 and 2.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            sampling_rate (float): Hz, sent as a 32-bit float
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or sampling_rate not a number.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            AIRateNotVaildError: sampling_rate above the model's limit for its channels or chip selects.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AI_setSamplingRate_async(self, port: int, sampling_rate: float) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AI_setSamplingRate, without timeout: Sets the sampling rate of modes 1 and 2.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            sampling_rate (float): Hz, sent as a 32-bit float
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or sampling_rate not a number.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            AIRateNotVaildError: sampling_rate above the model's limit for its channels or chip selects.
        """
    def AI_start(self, port: int, timeout: float = 3) -> int:
        """
        Starts streaming (OPEN_AI_STREAMING first, except on HeronAin and HeronAinPlus).
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, whatever the device did
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AI_start_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AI_start, without timeout: Starts streaming (OPEN_AI_STREAMING first, except on HeronAin and HeronAinPlus).
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
        
        Returns:
            int: 0, whatever the device did
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def AI_stop(self, port: int, timeout: float = 3) -> int:
        """
        Stops streaming; decoded samples stay readable.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AI_stop_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AI_stop, without timeout: Stops streaming; decoded samples stay readable.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def _AI_clearBufferStatus(self, port: int, timeout: float = 3) -> int:
        """
        Clears the stream buffer status.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _AI_clearBufferStatus_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _AI_clearBufferStatus, without timeout: Clears the stream buffer status.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def _AI_decodeCount(self, count: typing.SupportsInt | typing.SupportsIndex) -> float:
        """
        The value the decoder makes of one signed 16-bit count.
        """
    def _AI_decodedSize(self, index: typing.SupportsInt | typing.SupportsIndex) -> int:
        """
        Samples waiting in the decoded queue at a stream index.
        """
    def _AI_free(self) -> None:
        """
        _AI_free(self) -> None
        
        Ends and joins the decoder thread (the model's close).
        """
    def _AI_getCounter(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads the firmware's nine AI counters (port not checked).
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: 9 unsigned 32-bit counters
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _AI_getCounter_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _AI_getCounter, without timeout: Reads the firmware's nine AI counters (port not checked).
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
        
        Returns:
            list[int]: 9 unsigned 32-bit counters
        """
    def _AI_getPinMapPort(self, ai_port: typing.Any) -> list[int]:
        """
        The pin-map ports of an AI port.
        """
    def _AI_openStreaming(self, port: int, timeout: float = 3) -> None:
        """
        Sends OPEN_AI_STREAMING.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            None: nothing
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _AI_openStreaming_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, None]:
        """
        Awaitable _AI_openStreaming, without timeout: Sends OPEN_AI_STREAMING.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
        
        Returns:
            None: nothing
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def _AI_readBufferStatus(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads the stream buffer status.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: buffer_status: 4 unsigned 32-bit values
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _AI_readBufferStatus_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _AI_readBufferStatus, without timeout: Reads the stream buffer status.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
        
        Returns:
            list[int]: buffer_status: 4 unsigned 32-bit values
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def _AI_startStreaming(self, port: int, timeout: float = 3) -> int:
        """
        Sends the start of the stream without waiting for a reply.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _AI_startStreaming_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _AI_startStreaming, without timeout: Sends the start of the stream without waiting for a reply.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def _checkAIPinState(self, port: int, allow_state: list[str], timeout: float = 3) -> bool:
        """
        Checks that every pin of the port is in one of the allowed modes.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
            allow_state (list[str]): allowed pin modes, e.g. ["Idle"]
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            bool: True
        
        Raises, before anything is sent:
            AIPortNotAvaliableError: a pin of the port in another mode.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _checkAIPinState_async(self, port: int, allow_state: list[str]) -> collections.abc.Coroutine[typing.Any, typing.Any, bool]:
        """
        Awaitable _checkAIPinState, without timeout: Checks that every pin of the port is in one of the allowed modes.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis 0, 1 or 3, not the slot)
            allow_state (list[str]): allowed pin modes, e.g. ["Idle"]
        
        Returns:
            bool: True
        
        Raises, before anything is sent:
            AIPortNotAvaliableError: a pin of the port in another mode.
        """
    def _checkAIPort(self, port: typing.Any) -> bool:
        ...
    def _ckeckAISamplingRate(self, port: typing.Any, sampling_rate: typing.Any) -> bool:
        ...
    @property
    def ai_decoder_alive(self) -> bool:
        ...
    @property
    def ai_dict(self) -> dict[int, list[...]]:
        ...
    @property
    def ai_dropped_samples(self) -> int:
        ...
    @property
    def ai_echo_cmd(self) -> int:
        ...
    @property
    def ai_killed(self) -> bool:
        ...
    @property
    def ai_max_rate(self) -> int:
        ...
    @property
    def ai_num_channels(self) -> int:
        ...
    @property
    def ai_open_flag(self) -> bool:
        ...
    @property
    def ai_ratio(self) -> float:
        ...
    @property
    def ai_strm_cmd(self) -> int:
        ...
    @property
    def chip_select_p0(self) -> list[int]:
        ...
    @property
    def chip_select_p1(self) -> list[int]:
        ...
    @property
    def chip_select_p3(self) -> list[int]:
        ...
class AOModule:
    """
    Analog outputs: one value at once, firmware waveforms (form and parameters), or values pushed to the device's buffer in N-samples or continuous mode.
    """
    @staticmethod
    def _checkAOChannel(channel: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkAOForm(form: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkAOMode(mode: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkAONumOfValues(value: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkAOSpan(span: typing.Any) -> bool:
        ...
    def AO_close(self, port: int, timeout: float = 3) -> int:
        """
        Closes an AO port (KestrelAout and Trellis send nothing).
        
        Args:
            port (int): AO port, a key of ao_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_closeStreaming(self, port: int, timeout: float = 3) -> int | None:
        """
        Closes buffered output.
        
        Args:
            port (int): AO port, a key of ao_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_closeStreaming_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable AO_closeStreaming, without timeout: Closes buffered output.
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def AO_close_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AO_close, without timeout: Closes an AO port (KestrelAout and Trellis send nothing).
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def AO_getEnableChannels(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable AO_getEnableChannels, without timeout: Reads the enabled channels.
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            int | None: the enabled-channel value (bit n: channel n); None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def AO_getMode(self, port: int, timeout: float = 3) -> int | None:
        """
        Reads the generation mode.
        
        Args:
            port (int): AO port, a key of ao_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int | None: 0 on demand, 1 N-samples, 2 continuous; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_getMode_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable AO_getMode, without timeout: Reads the generation mode.
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            int | None: 0 on demand, 1 N-samples, 2 continuous; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def AO_getPort(self) -> list[int]:
        """
        The AO ports of the model; nothing is sent.
        
        Returns:
            list[int]: the keys of ao_dict in order
        """
    def AO_getPort_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable AO_getPort, without timeout: The AO ports of the model; nothing is sent.
        
        Returns:
            list[int]: the keys of ao_dict in order
        """
    def AO_getState(self, port: int, timeout: float = 3) -> int | None:
        """
        Reads the output state.
        
        Args:
            port (int): AO port, a key of ao_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int | None: 0 idle, 1 stand-by, 2 running; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_getValues(self, port: int, timeout: float = 3) -> list[float] | None:
        """
        Reads the values the channels output.
        
        Args:
            port (int): AO port, a key of ao_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[float] | None: 8 volts, channel 0 first; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_getValues_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[float] | None]:
        """
        Awaitable AO_getValues, without timeout: Reads the values the channels output.
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            list[float] | None: 8 volts, channel 0 first; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def AO_open(self, port: int, timeout: float = 3) -> int:
        """
        Opens an AO port whose pins are idle (KestrelAout and Trellis send nothing).
        
        Args:
            port (int): AO port, a key of ao_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict, or a pin of it is in use (after the pin-mode read).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_openStreaming(self, port: int, timeout: float = 3) -> list[int | float] | None:
        """
        Opens the port for buffered output and reads its mode and rate.
        
        Args:
            port (int): AO port, a key of ao_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int | float] | None: info: [mode, sampling_rate]; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_openStreaming_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int | float] | None]:
        """
        Awaitable AO_openStreaming, without timeout: Opens the port for buffered output and reads its mode and rate.
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            list[int | float] | None: info: [mode, sampling_rate]; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def AO_open_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AO_open, without timeout: Opens an AO port whose pins are idle (KestrelAout and Trellis send nothing).
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict, or a pin of it is in use (after the pin-mode read).
        """
    def AO_setEnableChannels(self, port: int, channel_list: list[int], timeout: float = 3) -> int | None:
        """
        Enables the listed channels and disables the others.
        
        Args:
            port (int): AO port, a key of ao_dict
            channel_list (list[int]): channels 0..7
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or channel_list not a list.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOChannelNotAvaliableError: a channel is not in 0..7.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_setEnableChannels_async(self, port: int, channel_list: list[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable AO_setEnableChannels, without timeout: Enables the listed channels and disables the others.
        
        Args:
            port (int): AO port, a key of ao_dict
            channel_list (list[int]): channels 0..7
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or channel_list not a list.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOChannelNotAvaliableError: a channel is not in 0..7.
        """
    def AO_setForm(self, port: int, channel: int, form: int, timeout: float = 3) -> int | None:
        """
        Sets the waveform of a channel.
        
        Args:
            port (int): AO port, a key of ao_dict
            channel (int): 0..7
            form (int): 1 rectangular, 2 triangular, 3 sine
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an argument is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOChannelNotAvaliableError: channel is not in 0..7.
            AOFormNotAvaliableError: form is not 1, 2 or 3 (DC, 0, is refused).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_setFormParam(self, port: int, channel: int, amplitude: float, offset: float, frequency: float, phase: float = 0, duty_cycle: float = 0.5, timeout: float = 3) -> int | None:
        """
        Sets the waveform parameters of a channel, each sent as a 32-bit float.
        
        Args:
            port (int): AO port, a key of ao_dict
            channel (int): 0..7
            amplitude (float): volts
            offset (float): volts
            frequency (float): Hz
            phase (float): phase (default 0)
            duty_cycle (float): 0..1, for the rectangular form (default 0.5)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int, or a parameter not a number.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOChannelNotAvaliableError: channel is not in 0..7.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_setFormParam_async(self, port: int, channel: int, amplitude: float, offset: float, frequency: float, phase: float = 0, duty_cycle: float = 0.5) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable AO_setFormParam, without timeout: Sets the waveform parameters of a channel, each sent as a 32-bit float.
        
        Args:
            port (int): AO port, a key of ao_dict
            channel (int): 0..7
            amplitude (float): volts
            offset (float): volts
            frequency (float): Hz
            phase (float): phase (default 0)
            duty_cycle (float): 0..1, for the rectangular form (default 0.5)
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int, or a parameter not a number.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOChannelNotAvaliableError: channel is not in 0..7.
        """
    def AO_setForm_async(self, port: int, channel: int, form: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable AO_setForm, without timeout: Sets the waveform of a channel.
        
        Args:
            port (int): AO port, a key of ao_dict
            channel (int): 0..7
            form (int): 1 rectangular, 2 triangular, 3 sine
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an argument is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOChannelNotAvaliableError: channel is not in 0..7.
            AOFormNotAvaliableError: form is not 1, 2 or 3 (DC, 0, is refused).
        """
    def AO_setMode(self, port: int, mode: int, timeout: float = 3) -> int | None:
        """
        Sets the generation mode.
        
        Args:
            port (int): AO port, a key of ao_dict
            mode (int): 0 on demand, 1 N-samples, 2 continuous
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOModeNotVaildError: mode is not 0, 1 or 2.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_setMode_async(self, port: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable AO_setMode, without timeout: Sets the generation mode.
        
        Args:
            port (int): AO port, a key of ao_dict
            mode (int): 0 on demand, 1 N-samples, 2 continuous
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOModeNotVaildError: mode is not 0, 1 or 2.
        """
    def AO_setNumSamples(self, port: int, num_samples: int, timeout: float = 3) -> int | None:
        """
        Sets how many samples N-samples mode outputs.
        
        Args:
            port (int): AO port, a key of ao_dict
            num_samples (int): samples, sent as 32 bits
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or num_samples is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_setNumSamples_async(self, port: int, num_samples: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable AO_setNumSamples, without timeout: Sets how many samples N-samples mode outputs.
        
        Args:
            port (int): AO port, a key of ao_dict
            num_samples (int): samples, sent as 32 bits
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or num_samples is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def AO_setSamplingRate(self, port: int, sampling_rate: float, timeout: float = 3) -> int | None:
        """
        Sets the output sampling rate.
        
        Args:
            port (int): AO port, a key of ao_dict
            sampling_rate (float): Hz, at most ao_rate
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or sampling_rate not a number.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AORateNotVaildError: sampling_rate above ao_rate.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_setSamplingRate_async(self, port: int, sampling_rate: float) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable AO_setSamplingRate, without timeout: Sets the output sampling rate.
        
        Args:
            port (int): AO port, a key of ao_dict
            sampling_rate (float): Hz, at most ao_rate
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or sampling_rate not a number.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AORateNotVaildError: sampling_rate above ao_rate.
        """
    def AO_startStreaming(self, port: int) -> int | None:
        """
        Starts output without waiting for a reply.
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            int | None: 0; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def AO_startStreaming_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable AO_startStreaming, without timeout: Starts output without waiting for a reply.
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            int | None: 0; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def AO_writeAllChannels(self, port: int, value_list: collections.abc.Sequence[float], timeout: float = 3) -> int:
        """
        Outputs values on all 8 channels at once (missing ones 0, extra ones dropped).
        
        Args:
            port (int): AO port, a key of ao_dict (on Trellis the slot: 1, 2 or 4)
            value_list (collections.abc.Sequence[float]): volts, channel 0 first
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or value_list not a list.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a value outside ao_volt_min..ao_volt_max.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_writeAllChannels_async(self, port: int, value_list: collections.abc.Sequence[float]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AO_writeAllChannels, without timeout: Outputs values on all 8 channels at once (missing ones 0, extra ones dropped).
        
        Args:
            port (int): AO port, a key of ao_dict (on Trellis the slot: 1, 2 or 4)
            value_list (collections.abc.Sequence[float]): volts, channel 0 first
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or value_list not a list.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a value outside ao_volt_min..ao_volt_max.
        """
    def AO_writeOneChannel(self, port: int, channel: int, value: float, timeout: float = 3) -> int:
        """
        Outputs one value on one channel.
        
        Args:
            port (int): AO port, a key of ao_dict (on Trellis the slot: 1, 2 or 4)
            channel (int): 0..7
            value (float): volts within ao_volt_min..ao_volt_max
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int, or value not a number.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOChannelNotAvaliableError: channel is not in 0..7.
            InputDataNotInRangeError: value outside ao_volt_min..ao_volt_max.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AO_writeOneChannel_async(self, port: int, channel: int, value: float) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AO_writeOneChannel, without timeout: Outputs one value on one channel.
        
        Args:
            port (int): AO port, a key of ao_dict (on Trellis the slot: 1, 2 or 4)
            channel (int): 0..7
            value (float): volts within ao_volt_min..ao_volt_max
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int, or value not a number.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOChannelNotAvaliableError: channel is not in 0..7.
            InputDataNotInRangeError: value outside ao_volt_min..ao_volt_max.
        """
    def _AO_getCounters(self, port: int, timeout: float = 3) -> list[int] | None:
        """
        Reads the interrupt and SPI counters.
        
        Args:
            port (int): AO port, a key of ao_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int] | None: counter_list: [interrupt counter, SPI counter]; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _AO_getCounters_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int] | None]:
        """
        Awaitable _AO_getCounters, without timeout: Reads the interrupt and SPI counters.
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            list[int] | None: counter_list: [interrupt counter, SPI counter]; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def _AO_getPinMapPort(self, ao_port: typing.Any) -> list[int]:
        """
        The pin-map ports of an AO port.
        """
    def _AO_initialBuffer(self, port: int, timeout: float = 3) -> list[int] | None:
        """
        Initialises the output buffer and reads its state.
        
        Args:
            port (int): AO port, a key of ao_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int] | None: state: [num_of_samples, channel_mask]; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _AO_initialBuffer_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int] | None]:
        """
        Awaitable _AO_initialBuffer, without timeout: Initialises the output buffer and reads its state.
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            list[int] | None: state: [num_of_samples, channel_mask]; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def _AO_pushToBuffer(self, port: int, num_of_val: int, value_list: collections.abc.Sequence[float], timeout: float = 3) -> int:
        """
        Pushes values into the device's output buffer.
        
        Args:
            port (int): AO port, a key of ao_dict (on Trellis the slot: 1, 2 or 4)
            num_of_val (int): the count sent (13 fit; more is sent all the same)
            value_list (collections.abc.Sequence[float]): volts, each sent as a 32-bit float
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or num_of_val is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _AO_pushToBuffer_async(self, port: int, num_of_val: int, value_list: collections.abc.Sequence[float]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _AO_pushToBuffer, without timeout: Pushes values into the device's output buffer.
        
        Args:
            port (int): AO port, a key of ao_dict (on Trellis the slot: 1, 2 or 4)
            num_of_val (int): the count sent (13 fit; more is sent all the same)
            value_list (collections.abc.Sequence[float]): volts, each sent as a 32-bit float
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or num_of_val is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def _AO_setSpan(self, port: int, span: int, timeout: float = 3) -> int | None:
        """
        Sets the output span.
        
        Args:
            port (int): AO port, a key of ao_dict
            span (int): 0: 0..5 V, 1: 0..10 V, 2: +-5 V, 3: +-10 V, 4: +-2.5 V
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or span is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOSpanNotVaildError: span is not in 0..4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _AO_setSpan_async(self, port: int, span: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable _AO_setSpan, without timeout: Sets the output span.
        
        Args:
            port (int): AO port, a key of ao_dict
            span (int): 0: 0..5 V, 1: 0..10 V, 2: +-5 V, 3: +-10 V, 4: +-2.5 V
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or span is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            AOSpanNotVaildError: span is not in 0..4.
        """
    def _AO_stopStreaming(self, port: int, timeout: float = 3) -> int | None:
        """
        Stops output.
        
        Args:
            port (int): AO port, a key of ao_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _AO_stopStreaming_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int | None]:
        """
        Awaitable _AO_stopStreaming, without timeout: Stops output.
        
        Args:
            port (int): AO port, a key of ao_dict
        
        Returns:
            int | None: 0, or a negative firmware error code; None on Trellis
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AOPortNotAvaliableError: port is not a key of ao_dict.
        """
    def _checkAOPinState(self, port: int, allow_state: list[str], timeout: float = 3) -> bool:
        """
        Checks that every pin of the port is in one of the allowed modes.
        
        Args:
            port (int): AO port, a key of ao_dict
            allow_state (list[str]): allowed pin modes, e.g. ["Idle"]
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            bool: True
        
        Raises, before anything is sent:
            AOPortNotAvaliableError: a pin of the port in another mode.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _checkAOPinState_async(self, port: int, allow_state: list[str]) -> collections.abc.Coroutine[typing.Any, typing.Any, bool]:
        """
        Awaitable _checkAOPinState, without timeout: Checks that every pin of the port is in one of the allowed modes.
        
        Args:
            port (int): AO port, a key of ao_dict
            allow_state (list[str]): allowed pin modes, e.g. ["Idle"]
        
        Returns:
            bool: True
        
        Raises, before anything is sent:
            AOPortNotAvaliableError: a pin of the port in another mode.
        """
    def _checkAOPort(self, port: typing.Any) -> bool:
        ...
    def _ckeckAOSamplingRate(self, rate: typing.Any) -> bool:
        ...
    @property
    def ao_channel(self) -> int:
        ...
    @property
    def ao_dict(self) -> dict[int, list[...]]:
        ...
    @property
    def ao_rate(self) -> int:
        ...
    @property
    def ao_volt_max(self) -> int:
        ...
    @property
    def ao_volt_min(self) -> int:
        ...
class CounterModule:
    """
    The device's two pulse counters; the host reads 16 bits.
    """
    def Counter_close(self, channel: int, timeout: float = 3) -> int:
        """
        Closes a counter channel.
        
        Args:
            channel (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            PWMChannelNotAvaliableError: channel is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Counter_close_async(self, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Counter_close, without timeout: Closes a counter channel.
        
        Args:
            channel (int): 0 or 1
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            PWMChannelNotAvaliableError: channel is not 0 or 1.
        """
    def Counter_open(self, channel: int, timeout: float = 3) -> int:
        """
        Opens a counter channel.
        
        Args:
            channel (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            PWMChannelNotAvaliableError: channel is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Counter_open_async(self, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Counter_open, without timeout: Opens a counter channel.
        
        Args:
            channel (int): 0 or 1
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            PWMChannelNotAvaliableError: channel is not 0 or 1.
        """
    def Counter_read(self, channel: int, timeout: float = 3) -> int:
        """
        Reads a counter.
        
        Args:
            channel (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the count, 0..65535
        
        Raises, before anything is sent:
            PWMChannelNotAvaliableError: channel is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Counter_read_async(self, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Counter_read, without timeout: Reads a counter.
        
        Args:
            channel (int): 0 or 1
        
        Returns:
            int: the count, 0..65535
        
        Raises, before anything is sent:
            PWMChannelNotAvaliableError: channel is not 0 or 1.
        """
    def Counter_start(self, channel: int, timeout: float = 3) -> int:
        """
        Starts counting.
        
        Args:
            channel (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            PWMChannelNotAvaliableError: channel is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Counter_start_async(self, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Counter_start, without timeout: Starts counting.
        
        Args:
            channel (int): 0 or 1
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            PWMChannelNotAvaliableError: channel is not 0 or 1.
        """
    def Counter_stop(self, channel: int, timeout: float = 3) -> int:
        """
        Stops counting.
        
        Args:
            channel (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            PWMChannelNotAvaliableError: channel is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Counter_stop_async(self, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Counter_stop, without timeout: Stops counting.
        
        Args:
            channel (int): 0 or 1
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            PWMChannelNotAvaliableError: channel is not 0 or 1.
        """
    def _checkCounterChannel(self, channel: typing.Any) -> bool:
        ...
class DIOModule:
    """
    Digital input and output ports: open ports or pins as inputs or outputs, read, write, toggle, close, slot modes and the start-up state.
    """
    def DIO_loadStartup(self, port: int, timeout: float = 3) -> tuple[list[int], list[int], list[int]]:
        """
        Reads the state the firmware restores at power-on.
        
        Args:
            port (int): port number (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            tuple[list[int], list[int], list[int]]: enabled, direction (1 output) and state, each a list of pin states
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DIO_loadStartup_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, tuple[list[int], list[int], list[int]]]:
        """
        Awaitable DIO_loadStartup, without timeout: Reads the state the firmware restores at power-on.
        
        Args:
            port (int): port number (not checked)
        
        Returns:
            tuple[list[int], list[int], list[int]]: enabled, direction (1 output) and state, each a list of pin states
        """
    def DIO_saveStartup(self, port: int, enabled: int, direction: int, state: int, timeout: float = 3) -> int:
        """
        Saves the state the firmware restores at power-on.
        
        Args:
            port (int): port number (not checked)
            enabled (int): 16-bit word, bit n enables pin n
            direction (int): 16-bit word, bit n 1 makes pin n an output
            state (int): 16-bit word, bit n for pin n
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DIO_saveStartup_async(self, port: int, enabled: int, direction: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DIO_saveStartup, without timeout: Saves the state the firmware restores at power-on.
        
        Args:
            port (int): port number (not checked)
            enabled (int): 16-bit word, bit n enables pin n
            direction (int): 16-bit word, bit n 1 makes pin n an output
            state (int): 16-bit word, bit n for pin n
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def DIO_setPortDI(self, port: int, timeout: float = 3) -> int:
        """
        Puts an input port into DI slot mode.
        
        Args:
            port (int): input port, a key of di_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DIPortNotAvaliableError: port is not a key of di_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DIO_setPortDI_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DIO_setPortDI, without timeout: Puts an input port into DI slot mode.
        
        Args:
            port (int): input port, a key of di_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DIPortNotAvaliableError: port is not a key of di_dict.
        """
    def DIO_setPortDO(self, port: int, timeout: float = 3) -> int:
        """
        Puts an output port into DO slot mode.
        
        Args:
            port (int): output port, a key of do_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DIO_setPortDO_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DIO_setPortDO, without timeout: Puts an output port into DO slot mode.
        
        Args:
            port (int): output port, a key of do_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
        """
    def DIO_setPortIdle(self, port: int, timeout: float = 3) -> int:
        """
        Puts an output port into idle slot mode.
        
        Args:
            port (int): output port, a key of do_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DIO_setPortIdle_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DIO_setPortIdle, without timeout: Puts an output port into idle slot mode.
        
        Args:
            port (int): output port, a key of do_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
        """
    def DI_closePins(self, port: int, pin: collections.abc.Sequence[int], timeout: float = 3) -> int:
        """
        Closes pins of an input port.
        
        Args:
            port (int): input port, a key of di_dict
            pin (collections.abc.Sequence[int]): pins of the port, e.g. [0, 2]
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code; 0 at once, with nothing checked or sent, on KestrelRelay, KestrelDio, PloverSink and Trellis (wired pins)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or pin neither an int nor a list.
            DIPortNotAvaliableError: port is not a key of di_dict.
            PinsNotExistError: a pin that is not in di_dict[port].
            TypeError: pin given as an int (input pins take a list only).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DI_closePins_async(self, port: int, pin: collections.abc.Sequence[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DI_closePins, without timeout: Closes pins of an input port.
        
        Args:
            port (int): input port, a key of di_dict
            pin (collections.abc.Sequence[int]): pins of the port, e.g. [0, 2]
        
        Returns:
            int: 0, or a negative firmware error code; 0 at once, with nothing checked or sent, on KestrelRelay, KestrelDio, PloverSink and Trellis (wired pins)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or pin neither an int nor a list.
            DIPortNotAvaliableError: port is not a key of di_dict.
            PinsNotExistError: a pin that is not in di_dict[port].
            TypeError: pin given as an int (input pins take a list only).
        """
    def DI_closePort(self, port: int, timeout: float = 3) -> int:
        """
        Closes every pin of an input port.
        
        Args:
            port (int): input port, a key of di_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code; 0 at once, with nothing checked or sent, on KestrelRelay, KestrelDio, PloverSink and Trellis (wired pins)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DIPortNotAvaliableError: port is not a key of di_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DI_closePort_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DI_closePort, without timeout: Closes every pin of an input port.
        
        Args:
            port (int): input port, a key of di_dict
        
        Returns:
            int: 0, or a negative firmware error code; 0 at once, with nothing checked or sent, on KestrelRelay, KestrelDio, PloverSink and Trellis (wired pins)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DIPortNotAvaliableError: port is not a key of di_dict.
        """
    def DI_getPinMap(self) -> dict[int, list[int]]:
        """
        The input ports and their pins; nothing is sent.
        
        Returns:
            dict[int, list[int]]: di_dict: input port -> pin numbers
        """
    def DI_getPinMap_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, dict[int, list[int]]]:
        """
        Awaitable DI_getPinMap, without timeout: The input ports and their pins; nothing is sent.
        
        Returns:
            dict[int, list[int]]: di_dict: input port -> pin numbers
        """
    def DI_openPins(self, port: int, pin: collections.abc.Sequence[int], timeout: float = 3) -> int:
        """
        Opens pins of an input port as inputs.
        
        Args:
            port (int): input port, a key of di_dict
            pin (collections.abc.Sequence[int]): pins of the port, e.g. [0, 2]
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: as for DI_closePort; after reading the pin modes (Sys_getPinModeInPort), DIPortNotAvaliableError for a pin in a mode other than Idle or DI
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or pin neither an int nor a list.
            DIPortNotAvaliableError: port is not a key of di_dict.
            PinsNotExistError: a pin that is not in di_dict[port].
            TypeError: pin given as an int (input pins take a list only).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DI_openPins_async(self, port: int, pin: collections.abc.Sequence[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DI_openPins, without timeout: Opens pins of an input port as inputs.
        
        Args:
            port (int): input port, a key of di_dict
            pin (collections.abc.Sequence[int]): pins of the port, e.g. [0, 2]
        
        Returns:
            int: as for DI_closePort; after reading the pin modes (Sys_getPinModeInPort), DIPortNotAvaliableError for a pin in a mode other than Idle or DI
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or pin neither an int nor a list.
            DIPortNotAvaliableError: port is not a key of di_dict.
            PinsNotExistError: a pin that is not in di_dict[port].
            TypeError: pin given as an int (input pins take a list only).
        """
    def DI_openPort(self, port: int, timeout: float = 3) -> int:
        """
        Opens every pin of an input port as an input.
        
        Args:
            port (int): input port, a key of di_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: as for DI_closePort; after reading the pin modes (Sys_getPinModeInPort), DIPortNotAvaliableError for a pin in a mode other than Idle or DI
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DIPortNotAvaliableError: port is not a key of di_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DI_openPort_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DI_openPort, without timeout: Opens every pin of an input port as an input.
        
        Args:
            port (int): input port, a key of di_dict
        
        Returns:
            int: as for DI_closePort; after reading the pin modes (Sys_getPinModeInPort), DIPortNotAvaliableError for a pin in a mode other than Idle or DI
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DIPortNotAvaliableError: port is not a key of di_dict.
        """
    def DI_readPins(self, port: int, pin: collections.abc.Sequence[int], timeout: float = 3) -> list[int]:
        """
        Reads pins of an input port.
        
        Args:
            port (int): input port, a key of di_dict
            pin (collections.abc.Sequence[int]): pins of the port, e.g. [0, 2]
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the state (0 or 1) of each named pin, in the order named
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or pin neither an int nor a list.
            DIPortNotAvaliableError: port is not a key of di_dict.
            PinsNotExistError: a pin that is not in di_dict[port].
            TypeError: pin given as an int (input pins take a list only).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DI_readPins_async(self, port: int, pin: collections.abc.Sequence[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable DI_readPins, without timeout: Reads pins of an input port.
        
        Args:
            port (int): input port, a key of di_dict
            pin (collections.abc.Sequence[int]): pins of the port, e.g. [0, 2]
        
        Returns:
            list[int]: the state (0 or 1) of each named pin, in the order named
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or pin neither an int nor a list.
            DIPortNotAvaliableError: port is not a key of di_dict.
            PinsNotExistError: a pin that is not in di_dict[port].
            TypeError: pin given as an int (input pins take a list only).
        """
    def DI_readPort(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads every pin of an input port.
        
        Args:
            port (int): input port, a key of di_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: one 0 or 1 per pin, dio_num_pins_per_port entries, pin 0 first
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DIPortNotAvaliableError: port is not a key of di_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DI_readPort_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable DI_readPort, without timeout: Reads every pin of an input port.
        
        Args:
            port (int): input port, a key of di_dict
        
        Returns:
            list[int]: one 0 or 1 per pin, dio_num_pins_per_port entries, pin 0 first
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DIPortNotAvaliableError: port is not a key of di_dict.
        """
    def DO_closePins(self, port: int, pin: int | collections.abc.Sequence[int], timeout: float = 3) -> int:
        """
        Closes pins of an output port.
        
        Args:
            port (int): output port, a key of do_dict
            pin (int | collections.abc.Sequence[int]): pins of the port: a list ([0, 2]) or a bit mask (0b101)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code; 0 at once, with nothing checked or sent, on KestrelRelay, KestrelDio, PloverSink and Trellis (wired pins)
        
        Raises, before anything is sent:
            TypeError: pin is neither an int nor a list.
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
            PinsNotExistError: a pin that is not in do_dict[port].
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DO_closePins_async(self, port: int, pin: int | collections.abc.Sequence[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DO_closePins, without timeout: Closes pins of an output port.
        
        Args:
            port (int): output port, a key of do_dict
            pin (int | collections.abc.Sequence[int]): pins of the port: a list ([0, 2]) or a bit mask (0b101)
        
        Returns:
            int: 0, or a negative firmware error code; 0 at once, with nothing checked or sent, on KestrelRelay, KestrelDio, PloverSink and Trellis (wired pins)
        
        Raises, before anything is sent:
            TypeError: pin is neither an int nor a list.
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
            PinsNotExistError: a pin that is not in do_dict[port].
        """
    def DO_closePort(self, port: int, timeout: float = 3) -> int:
        """
        Closes every pin of an output port.
        
        Args:
            port (int): output port, a key of do_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code; 0 at once, with nothing checked or sent, on KestrelRelay, KestrelDio, PloverSink and Trellis (wired pins)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DO_closePort_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DO_closePort, without timeout: Closes every pin of an output port.
        
        Args:
            port (int): output port, a key of do_dict
        
        Returns:
            int: 0, or a negative firmware error code; 0 at once, with nothing checked or sent, on KestrelRelay, KestrelDio, PloverSink and Trellis (wired pins)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
        """
    def DO_getPinMap(self) -> dict[int, list[int]]:
        """
        The output ports and their pins; nothing is sent.
        
        Returns:
            dict[int, list[int]]: do_dict: output port -> pin numbers
        """
    def DO_getPinMap_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, dict[int, list[int]]]:
        """
        Awaitable DO_getPinMap, without timeout: The output ports and their pins; nothing is sent.
        
        Returns:
            dict[int, list[int]]: do_dict: output port -> pin numbers
        """
    def DO_openPins(self, port: int, pin: int | collections.abc.Sequence[int], timeout: float = 3) -> int:
        """
        Opens pins of an output port as outputs.
        
        Args:
            port (int): output port, a key of do_dict
            pin (int | collections.abc.Sequence[int]): pins of the port: a list ([0, 2]) or a bit mask (0b101)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: as for DO_closePort; after reading the pin modes (Sys_getPinModeInPort), DOPortNotAvaliableError for a pin in a mode other than Idle or DO
        
        Raises, before anything is sent:
            TypeError: pin is neither an int nor a list.
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
            PinsNotExistError: a pin that is not in do_dict[port].
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DO_openPins_async(self, port: int, pin: int | collections.abc.Sequence[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DO_openPins, without timeout: Opens pins of an output port as outputs.
        
        Args:
            port (int): output port, a key of do_dict
            pin (int | collections.abc.Sequence[int]): pins of the port: a list ([0, 2]) or a bit mask (0b101)
        
        Returns:
            int: as for DO_closePort; after reading the pin modes (Sys_getPinModeInPort), DOPortNotAvaliableError for a pin in a mode other than Idle or DO
        
        Raises, before anything is sent:
            TypeError: pin is neither an int nor a list.
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
            PinsNotExistError: a pin that is not in do_dict[port].
        """
    def DO_openPort(self, port: int, timeout: float = 3) -> int:
        """
        Opens every pin of an output port as an output.
        
        Args:
            port (int): output port, a key of do_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: as for DO_closePort; after reading the pin modes (Sys_getPinModeInPort), DOPortNotAvaliableError for a pin in a mode other than Idle or DO
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DO_openPort_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DO_openPort, without timeout: Opens every pin of an output port as an output.
        
        Args:
            port (int): output port, a key of do_dict
        
        Returns:
            int: as for DO_closePort; after reading the pin modes (Sys_getPinModeInPort), DOPortNotAvaliableError for a pin in a mode other than Idle or DO
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
        """
    def DO_togglePins(self, port: int, pin: int | collections.abc.Sequence[int], timeout: float = 3) -> list[int]:
        """
        Toggles pins of an output port (the pins are not checked against do_dict).
        
        Args:
            port (int): output port, a key of do_dict
            pin (int | collections.abc.Sequence[int]): pins of the port: a list ([0, 2]) or a bit mask (0b101)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the pin states after the toggle, pin 0 first
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DO_togglePins_async(self, port: int, pin: int | collections.abc.Sequence[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable DO_togglePins, without timeout: Toggles pins of an output port (the pins are not checked against do_dict).
        
        Args:
            port (int): output port, a key of do_dict
            pin (int | collections.abc.Sequence[int]): pins of the port: a list ([0, 2]) or a bit mask (0b101)
        
        Returns:
            list[int]: the pin states after the toggle, pin 0 first
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
        """
    def DO_togglePort(self, port: int, timeout: float = 3) -> list[int]:
        """
        Toggles every pin of an output port.
        
        Args:
            port (int): output port, a key of do_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the pin states after the toggle, pin 0 first
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DO_togglePort_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable DO_togglePort, without timeout: Toggles every pin of an output port.
        
        Args:
            port (int): output port, a key of do_dict
        
        Returns:
            list[int]: the pin states after the toggle, pin 0 first
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DOPortNotAvaliableError: port is not a key of do_dict.
        """
    def DO_writePins(self, port: int, pin: int | collections.abc.Sequence[int], value: int | collections.abc.Sequence[int], timeout: float = 3) -> int:
        """
        Writes pins of an output port; the other pins keep their state.
        
        Args:
            port (int): output port, a key of do_dict
            pin (int | collections.abc.Sequence[int]): pins of the port: a list ([0, 2]) or a bit mask (0b101)
            value (int | collections.abc.Sequence[int]): of pin's type: a list of 0 and 1, one per pin of a pin list (extra values are ignored), or a word whose bits under the pin mask are written
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: always 0
        
        Raises, before anything is sent:
            TypeError: pin is neither an int nor a list.
            InputTypeNotCorrectError: port is not an int, or value neither an int nor a list.
            DOPortNotAvaliableError: port is not a key of do_dict.
            PinsNotExistError: a pin that is not in do_dict[port].
            InputTypeNotConsistentError: pin and value of different types.
            PinsValueNotDefineError: fewer values than pins.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DO_writePins_async(self, port: int, pin: int | collections.abc.Sequence[int], value: int | collections.abc.Sequence[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DO_writePins, without timeout: Writes pins of an output port; the other pins keep their state.
        
        Args:
            port (int): output port, a key of do_dict
            pin (int | collections.abc.Sequence[int]): pins of the port: a list ([0, 2]) or a bit mask (0b101)
            value (int | collections.abc.Sequence[int]): of pin's type: a list of 0 and 1, one per pin of a pin list (extra values are ignored), or a word whose bits under the pin mask are written
        
        Returns:
            int: always 0
        
        Raises, before anything is sent:
            TypeError: pin is neither an int nor a list.
            InputTypeNotCorrectError: port is not an int, or value neither an int nor a list.
            DOPortNotAvaliableError: port is not a key of do_dict.
            PinsNotExistError: a pin that is not in do_dict[port].
            InputTypeNotConsistentError: pin and value of different types.
            PinsValueNotDefineError: fewer values than pins.
        """
    def DO_writePort(self, port: int, value: int | collections.abc.Sequence[int], timeout: float = 3) -> int:
        """
        Writes every pin of an output port.
        
        Args:
            port (int): output port, a key of do_dict
            value (int | collections.abc.Sequence[int]): pin states: a list of 0 and 1, pin 0 first (pins past its end are written 0), or a 16-bit word, bit n for pin n
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: always 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or value neither an int nor a list.
            DOPortNotAvaliableError: port is not a key of do_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DO_writePort_async(self, port: int, value: int | collections.abc.Sequence[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DO_writePort, without timeout: Writes every pin of an output port.
        
        Args:
            port (int): output port, a key of do_dict
            value (int | collections.abc.Sequence[int]): pin states: a list of 0 and 1, pin 0 first (pins past its end are written 0), or a 16-bit word, bit n for pin n
        
        Returns:
            int: always 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or value neither an int nor a list.
            DOPortNotAvaliableError: port is not a key of do_dict.
        """
    def _checkDIPort(self, port: typing.Any) -> bool:
        ...
    def _checkDIPortAndPin(self, port: typing.Any, pin_list: typing.Any) -> bool:
        ...
    def _checkDOPort(self, port: typing.Any) -> bool:
        ...
    def _checkDOPortAndPin(self, port: typing.Any, pin_list: typing.Any) -> bool:
        ...
    def _closeDIOInPins(self, port: int, pin: int, timeout: float = 3) -> int:
        """
        Disables the pins of a mask.
        
        Args:
            port (int): port number (not checked)
            pin (int): mask
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _closeDIOInPins_async(self, port: int, pin: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _closeDIOInPins, without timeout: Disables the pins of a mask.
        
        Args:
            port (int): port number (not checked)
            pin (int): mask
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def _closeDIOInPort(self, port: int, timeout: float = 3) -> int:
        """
        Disables every pin of a port.
        
        Args:
            port (int): port number (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _closeDIOInPort_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _closeDIOInPort, without timeout: Disables every pin of a port.
        
        Args:
            port (int): port number (not checked)
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def _getDIOCurrent(self, port: int, mask: int, timeout: float = 3) -> tuple[list[int], list[int], list[int]]:
        """
        Reads enabled, direction and state.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            tuple[list[int], list[int], list[int]]: enabled, direction, state
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _getDIOCurrent_async(self, port: int, mask: int) -> collections.abc.Coroutine[typing.Any, typing.Any, tuple[list[int], list[int], list[int]]]:
        """
        Awaitable _getDIOCurrent, without timeout: Reads enabled, direction and state.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
        
        Returns:
            tuple[list[int], list[int], list[int]]: enabled, direction, state
        """
    def _getDIOState(self, port: int, mask: int, timeout: float = 3) -> list[int]:
        """
        Reads the pin states.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: one 0 or 1 per pin, dio_num_pins_per_port entries, pin 0 first
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _getDIOState_async(self, port: int, mask: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _getDIOState, without timeout: Reads the pin states.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
        
        Returns:
            list[int]: one 0 or 1 per pin, dio_num_pins_per_port entries, pin 0 first
        """
    def _getPinIndexInInt(self, pin: typing.Any) -> typing.Any:
        ...
    def _getPinIndexInList(self, pin: typing.Any) -> typing.Any:
        ...
    def _readAndGetDI(self, port: int, mask: int, timeout: float = 3) -> list[int]:
        """
        Reads the inputs.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: one 0 or 1 per pin, dio_num_pins_per_port entries, pin 0 first
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _readAndGetDI_async(self, port: int, mask: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _readAndGetDI, without timeout: Reads the inputs.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
        
        Returns:
            list[int]: one 0 or 1 per pin, dio_num_pins_per_port entries, pin 0 first
        """
    def _readDI(self, port: int, timeout: float = 3) -> int:
        """
        READ_DI.
        
        Args:
            port (int): port number (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _readDI_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _readDI, without timeout: READ_DI.
        
        Args:
            port (int): port number (not checked)
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def _setAndWriteDO(self, port: int, mask: int, state: int, timeout: float = 3) -> list[int]:
        """
        Writes outputs.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            state (int): 16-bit word, bit n for pin n
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: one 0 or 1 per pin, dio_num_pins_per_port entries, pin 0 first
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _setAndWriteDO_async(self, port: int, mask: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _setAndWriteDO, without timeout: Writes outputs.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            state (int): 16-bit word, bit n for pin n
        
        Returns:
            list[int]: one 0 or 1 per pin, dio_num_pins_per_port entries, pin 0 first
        """
    def _setDIOCurrent(self, port: int, mask: int, enabled: int, direction: int, state: int, timeout: float = 3) -> int:
        """
        Writes enabled, direction and state.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            enabled (int): word
            direction (int): word, 1 output
            state (int): 16-bit word, bit n for pin n
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _setDIOCurrent_async(self, port: int, mask: int, enabled: int, direction: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _setDIOCurrent, without timeout: Writes enabled, direction and state.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            enabled (int): word
            direction (int): word, 1 output
            state (int): 16-bit word, bit n for pin n
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def _setDIOState(self, port: int, mask: int, state: int, timeout: float = 3) -> int:
        """
        Writes the pin states.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            state (int): 16-bit word, bit n for pin n
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _setDIOState_async(self, port: int, mask: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _setDIOState, without timeout: Writes the pin states.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            state (int): 16-bit word, bit n for pin n
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def _toggleAndWriteDO(self, port: int, mask: int, timeout: float = 3) -> list[int]:
        """
        Toggles outputs.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: one 0 or 1 per pin, dio_num_pins_per_port entries, pin 0 first
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _toggleAndWriteDO_async(self, port: int, mask: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _toggleAndWriteDO, without timeout: Toggles outputs.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
        
        Returns:
            list[int]: one 0 or 1 per pin, dio_num_pins_per_port entries, pin 0 first
        """
    def _toggleDIODirection(self, port: int, mask: int, state: int, timeout: float = 3) -> int:
        """
        Toggles directions.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            state (int): 16-bit word, bit n for pin n
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _toggleDIODirection_async(self, port: int, mask: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _toggleDIODirection, without timeout: Toggles directions.
        
        Args:
            port (int): port number (not checked)
            mask (int): 16-bit word, bit n selects pin n
            state (int): 16-bit word, bit n for pin n
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def _writeDO(self, port: int, timeout: float = 3) -> int:
        """
        WRITE_DO.
        
        Args:
            port (int): port number (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _writeDO_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _writeDO, without timeout: WRITE_DO.
        
        Args:
            port (int): port number (not checked)
        
        Returns:
            int: 0, or a negative firmware error code
        """
class DPOTModule:
    """
    The four resistor channels of KestrelRes (digital potentiometer).
    """
    def DPOT_close(self, port: int, timeout: float = 3) -> int:
        """
        Checks the port; nothing to close on the device.
        
        Args:
            port (int): 0, the one DPOT port
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0; nothing is sent
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DPOTPortNotAvaliableError: port is not 0.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DPOT_close_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DPOT_close, without timeout: Checks the port; nothing to close on the device.
        
        Args:
            port (int): 0, the one DPOT port
        
        Returns:
            int: 0; nothing is sent
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DPOTPortNotAvaliableError: port is not 0.
        """
    def DPOT_open(self, port: int, timeout: float = 3) -> int:
        """
        Checks the port; nothing to set up on the device.
        
        Args:
            port (int): 0, the one DPOT port
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0; nothing is sent
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DPOTPortNotAvaliableError: port is not 0.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DPOT_open_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DPOT_open, without timeout: Checks the port; nothing to set up on the device.
        
        Args:
            port (int): 0, the one DPOT port
        
        Returns:
            int: 0; nothing is sent
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DPOTPortNotAvaliableError: port is not 0.
        """
    def DPOT_readByChannel(self, port: int, channel: int, timeout: float = 3) -> int:
        """
        Reads one resistor channel.
        
        Args:
            port (int): 0, the one DPOT port
            channel (int): 0..3 (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the firmware's 32 bits as an unsigned int
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DPOTPortNotAvaliableError: port is not 0.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DPOT_readByChannel_async(self, port: int, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DPOT_readByChannel, without timeout: Reads one resistor channel.
        
        Args:
            port (int): 0, the one DPOT port
            channel (int): 0..3 (not checked)
        
        Returns:
            int: the firmware's 32 bits as an unsigned int
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            DPOTPortNotAvaliableError: port is not 0.
        """
    def DPOT_writeAllChannel(self, port: int, resistance_ratio: collections.abc.Sequence[float], timeout: float = 3) -> int:
        """
        Writes the four resistor channels.
        
        Args:
            port (int): 0, the one DPOT port
            resistance_ratio (collections.abc.Sequence[float]): four ratios, channel 0 first, each sent as a 32-bit float; no range on the host
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or resistance_ratio not a list.
            DPOTPortNotAvaliableError: port is not 0.
            DPOTChannelNotAvaliableError: resistance_ratio does not hold exactly 4 values.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def DPOT_writeAllChannel_async(self, port: int, resistance_ratio: collections.abc.Sequence[float]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable DPOT_writeAllChannel, without timeout: Writes the four resistor channels.
        
        Args:
            port (int): 0, the one DPOT port
            resistance_ratio (collections.abc.Sequence[float]): four ratios, channel 0 first, each sent as a 32-bit float; no range on the host
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or resistance_ratio not a list.
            DPOTPortNotAvaliableError: port is not 0.
            DPOTChannelNotAvaliableError: resistance_ratio does not hold exactly 4 values.
        """
    def _checkDPOTChannelAmount(self, channel: typing.Any) -> bool:
        ...
    def _checkDPOTPort(self, port: typing.Any) -> bool:
        ...
class I2CModule:
    """
    The device as an I2C master: open a port, set its clock rate and address size, read and write bytes at an address.
    """
    def I2C_close(self, port: int, timeout: float = 3) -> int:
        """
        Closes an I2C port.
        
        Args:
            port (int): I2C port, a key of I2C_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def I2C_close_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable I2C_close, without timeout: Closes an I2C port.
        
        Args:
            port (int): I2C port, a key of I2C_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
        """
    def I2C_getPinMap(self) -> dict[int, list[tuple[int, int]]]:
        """
        The I2C ports and the pins they occupy; nothing is sent.
        
        Returns:
            dict[int, list[tuple[int, int]]]: I2C_dict: port -> [(digital port, pin), ...]
        """
    def I2C_getPinMap_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, dict[int, list[tuple[int, int]]]]:
        """
        Awaitable I2C_getPinMap, without timeout: The I2C ports and the pins they occupy; nothing is sent.
        
        Returns:
            dict[int, list[tuple[int, int]]]: I2C_dict: port -> [(digital port, pin), ...]
        """
    def I2C_open(self, port: int, timeout: float = 3) -> int:
        """
        Opens an I2C port.
        
        Args:
            port (int): I2C port, a key of I2C_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code; after reading the pin modes of the port's digital ports (Sys_getPinModeInPort), I2CPortNotAvaliableError for a pin in a mode other than Idle, DI or DO, before OPEN_I2C is sent
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def I2C_open_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable I2C_open, without timeout: Opens an I2C port.
        
        Args:
            port (int): I2C port, a key of I2C_dict
        
        Returns:
            int: 0, or a negative firmware error code; after reading the pin modes of the port's digital ports (Sys_getPinModeInPort), I2CPortNotAvaliableError for a pin in a mode other than Idle, DI or DO, before OPEN_I2C is sent
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
        """
    def I2C_read(self, port: int, read_address: int, bytes_to_read: int, timeout: float = 3) -> list[int]:
        """
        Reads bytes from a slave.
        
        Args:
            port (int): I2C port, a key of I2C_dict
            read_address (int): the slave's address byte
            bytes_to_read (int): how many bytes, 0..255
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the bytes read; a failed read gives a short or empty list (no status)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an argument that is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
            ValueError: read_address or bytes_to_read outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def I2C_read_async(self, port: int, read_address: int, bytes_to_read: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable I2C_read, without timeout: Reads bytes from a slave.
        
        Args:
            port (int): I2C port, a key of I2C_dict
            read_address (int): the slave's address byte
            bytes_to_read (int): how many bytes, 0..255
        
        Returns:
            list[int]: the bytes read; a failed read gives a short or empty list (no status)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an argument that is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
            ValueError: read_address or bytes_to_read outside 0..255.
        """
    def I2C_reset(self, port: int, timeout: float = 3) -> int:
        """
        Resets an I2C port.
        
        Args:
            port (int): I2C port, a key of I2C_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def I2C_reset_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable I2C_reset, without timeout: Resets an I2C port.
        
        Args:
            port (int): I2C port, a key of I2C_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
        """
    def I2C_setAddressSize(self, port: int, mode: int, timeout: float = 3) -> int:
        """
        Sets the address size of an I2C port.
        
        Args:
            port (int): I2C port, a key of I2C_dict
            mode (int): 0 or 1, passed on to the firmware
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
            I2CAddressSizeNotVaildError: mode is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def I2C_setAddressSize_async(self, port: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable I2C_setAddressSize, without timeout: Sets the address size of an I2C port.
        
        Args:
            port (int): I2C port, a key of I2C_dict
            mode (int): 0 or 1, passed on to the firmware
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
            I2CAddressSizeNotVaildError: mode is not 0 or 1.
        """
    def I2C_setClockRate(self, port: int, mode: int, timeout: float = 3) -> int:
        """
        Sets the clock rate of an I2C port.
        
        Args:
            port (int): I2C port, a key of I2C_dict
            mode (int): 0: 100 kHz, 1: 400 kHz, 2: 1 MHz, 3: 3.4 MHz
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
            I2CClockNotSupportError: mode is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def I2C_setClockRate_async(self, port: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable I2C_setClockRate, without timeout: Sets the clock rate of an I2C port.
        
        Args:
            port (int): I2C port, a key of I2C_dict
            mode (int): 0: 100 kHz, 1: 400 kHz, 2: 1 MHz, 3: 3.4 MHz
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
            I2CClockNotSupportError: mode is not 0..3.
        """
    def I2C_write(self, port: int, write_address: int, write_data: list[int], timeout: float = 3) -> int:
        """
        Writes bytes to a slave.
        
        Args:
            port (int): I2C port, a key of I2C_dict
            write_address (int): the slave's address byte
            write_data (list[int]): the bytes, each 0..255; their count goes out as one byte
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or write_address is not an int, or write_data is not a list.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
            ValueError: an address, byte or count outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def I2C_write_async(self, port: int, write_address: int, write_data: list[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable I2C_write, without timeout: Writes bytes to a slave.
        
        Args:
            port (int): I2C port, a key of I2C_dict
            write_address (int): the slave's address byte
            write_data (list[int]): the bytes, each 0..255; their count goes out as one byte
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or write_address is not an int, or write_data is not a list.
            I2CPortNotAvaliableError: port is not a key of I2C_dict.
            ValueError: an address, byte or count outside 0..255.
        """
    def _I2C_getPinMapPort(self, I2C_port: typing.Any) -> list[int]:
        """
        The digital ports the pins of an I2C port lie on, each once.
        """
    def _checkI2CAddressSize(self, mode: typing.Any) -> None:
        ...
    def _checkI2CClockRate(self, mode: typing.Any) -> None:
        ...
    def _checkI2CPinState(self, port: int, allow_state: collections.abc.Sequence[str], timeout: float = 3) -> None:
        """
        Reads the pin modes of the port's digital ports and tests every pin of the port.
        
        Args:
            port (int): I2C port, a key of I2C_dict (not checked for its type)
            allow_state (collections.abc.Sequence[str]): mode names a pin may be in, e.g. ['Idle', 'DI', 'DO']
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            None: None; I2CPortNotAvaliableError for a pin in another mode
        
        Raises, before anything is sent:
            KeyError: port is not a key of I2C_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _checkI2CPinState_async(self, port: int, allow_state: collections.abc.Sequence[str]) -> collections.abc.Coroutine[typing.Any, typing.Any, None]:
        """
        Awaitable _checkI2CPinState, without timeout: Reads the pin modes of the port's digital ports and tests every pin of the port.
        
        Args:
            port (int): I2C port, a key of I2C_dict (not checked for its type)
            allow_state (collections.abc.Sequence[str]): mode names a pin may be in, e.g. ['Idle', 'DI', 'DO']
        
        Returns:
            None: None; I2CPortNotAvaliableError for a pin in another mode
        
        Raises, before anything is sent:
            KeyError: port is not a key of I2C_dict.
        """
    def _checkI2CPort(self, port: typing.Any) -> None:
        ...
class NetworkModule:
    """
    A network device's own addressing: IP address, mask, gateway, MAC.
    """
    def Net_getGateway(self, timeout: float = 3) -> str:
        """
        Reads the device's gateway address.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            str: "a.b.c.d"; also kept in gateway
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Net_getGateway_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, str]:
        """
        Awaitable Net_getGateway, without timeout: Reads the device's gateway address.
        
        Returns:
            str: "a.b.c.d"; also kept in gateway
        """
    def Net_getIPAddrAndSubmask(self, timeout: float = 3) -> list[str]:
        """
        Reads the device's IP address and subnet mask.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[str]: [ip_addr, subnet_mask], each "a.b.c.d"; also kept in ip_addr, subnet_mask
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Net_getIPAddrAndSubmask_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, list[str]]:
        """
        Awaitable Net_getIPAddrAndSubmask, without timeout: Reads the device's IP address and subnet mask.
        
        Returns:
            list[str]: [ip_addr, subnet_mask], each "a.b.c.d"; also kept in ip_addr, subnet_mask
        """
    def Net_getMACAddr(self, timeout: float = 3) -> str:
        """
        Reads the device's MAC address.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            str: six hex numbers without leading zeros, "a:b:c:d:e:f"; also kept in mac_addr
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Net_getMACAddr_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, str]:
        """
        Awaitable Net_getMACAddr, without timeout: Reads the device's MAC address.
        
        Returns:
            str: six hex numbers without leading zeros, "a:b:c:d:e:f"; also kept in mac_addr
        """
    def Net_setIPAddrAndSubmask(self, ip_addr: str, subnet_mask: str, timeout: float = 3) -> int:
        """
        Sets the device's IP address and subnet mask.
        
        Args:
            ip_addr (str): dotted IPv4 address, "a.b.c.d"
            subnet_mask (str): dotted IPv4 mask, "a.b.c.d"
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an address that is not a str.
            OSError: an address that is not dotted IPv4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Net_setIPAddrAndSubmask_async(self, ip_addr: str, subnet_mask: str) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Net_setIPAddrAndSubmask, without timeout: Sets the device's IP address and subnet mask.
        
        Args:
            ip_addr (str): dotted IPv4 address, "a.b.c.d"
            subnet_mask (str): dotted IPv4 mask, "a.b.c.d"
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an address that is not a str.
            OSError: an address that is not dotted IPv4.
        """
    def Sys_getGateway(self, timeout: float = 3) -> str:
        """
        The older name of Net_getGateway.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            str: "a.b.c.d"; also kept in gateway
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_getGateway_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, str]:
        """
        Awaitable Sys_getGateway, without timeout: The older name of Net_getGateway.
        
        Returns:
            str: "a.b.c.d"; also kept in gateway
        """
    def Sys_getIPAddrAndSubmask(self, timeout: float = 3) -> list[str]:
        """
        The older name of Net_getIPAddrAndSubmask.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[str]: [ip_addr, subnet_mask], each "a.b.c.d"; also kept in ip_addr, subnet_mask
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_getIPAddrAndSubmask_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, list[str]]:
        """
        Awaitable Sys_getIPAddrAndSubmask, without timeout: The older name of Net_getIPAddrAndSubmask.
        
        Returns:
            list[str]: [ip_addr, subnet_mask], each "a.b.c.d"; also kept in ip_addr, subnet_mask
        """
    def Sys_getMACAddr(self, timeout: float = 3) -> str:
        """
        The older name of Net_getMACAddr.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            str: six hex numbers without leading zeros, "a:b:c:d:e:f"; also kept in mac_addr
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_getMACAddr_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, str]:
        """
        Awaitable Sys_getMACAddr, without timeout: The older name of Net_getMACAddr.
        
        Returns:
            str: six hex numbers without leading zeros, "a:b:c:d:e:f"; also kept in mac_addr
        """
    def Sys_setIPAddrAndSubmask(self, ip_addr: str, subnet_mask: str, timeout: float = 3) -> int:
        """
        The older name of Net_setIPAddrAndSubmask.
        
        Args:
            ip_addr (str): dotted IPv4 address, "a.b.c.d"
            subnet_mask (str): dotted IPv4 mask, "a.b.c.d"
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an address that is not a str.
            OSError: an address that is not dotted IPv4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_setIPAddrAndSubmask_async(self, ip_addr: str, subnet_mask: str) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Sys_setIPAddrAndSubmask, without timeout: The older name of Net_setIPAddrAndSubmask.
        
        Args:
            ip_addr (str): dotted IPv4 address, "a.b.c.d"
            subnet_mask (str): dotted IPv4 mask, "a.b.c.d"
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an address that is not a str.
            OSError: an address that is not dotted IPv4.
        """
    def _setGateway(self, gateway: str, timeout: float = 3) -> int:
        """
        Sets the device's gateway address.
        
        Args:
            gateway (str): "a.b.c.d"
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: gateway is not a str.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _setGateway_async(self, gateway: str) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _setGateway, without timeout: Sets the device's gateway address.
        
        Args:
            gateway (str): "a.b.c.d"
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: gateway is not a str.
        """
    def _setMACAddr(self, mac_addr: str, timeout: float = 3) -> int:
        """
        Sets the device's MAC address.
        
        Args:
            mac_addr (str): six hex numbers, "aa:bb:cc:dd:ee:ff"
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: mac_addr is not a str.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _setMACAddr_async(self, mac_addr: str) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _setMACAddr, without timeout: Sets the device's MAC address.
        
        Args:
            mac_addr (str): six hex numbers, "aa:bb:cc:dd:ee:ff"
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: mac_addr is not a str.
        """
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
    """
    The device's two PWM outputs: the host checks the channel and passes frequency and duty cycle on as 32-bit floats.
    """
    def PWM_close(self, channel: int, timeout: float = 3) -> int:
        """
        Closes a PWM channel.
        
        Args:
            channel (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def PWM_close_async(self, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable PWM_close, without timeout: Closes a PWM channel.
        
        Args:
            channel (int): 0 or 1
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
        """
    def PWM_open(self, channel: int, timeout: float = 3) -> int:
        """
        Opens a PWM channel.
        
        Args:
            channel (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def PWM_open_async(self, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable PWM_open, without timeout: Opens a PWM channel.
        
        Args:
            channel (int): 0 or 1
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
        """
    def PWM_setDutyCycle(self, channel: int, duty_cycle: float, timeout: float = 3) -> int:
        """
        Sets a PWM channel's duty cycle.
        
        Args:
            channel (int): 0 or 1
            duty_cycle (float): sent as a 32-bit float; its unit and range are the firmware's
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
            TypeError: duty_cycle is not a number.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def PWM_setDutyCycle_async(self, channel: int, duty_cycle: float) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable PWM_setDutyCycle, without timeout: Sets a PWM channel's duty cycle.
        
        Args:
            channel (int): 0 or 1
            duty_cycle (float): sent as a 32-bit float; its unit and range are the firmware's
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
            TypeError: duty_cycle is not a number.
        """
    def PWM_setFrequency(self, channel: int, frequency: float, timeout: float = 3) -> int:
        """
        Sets a PWM channel's frequency.
        
        Args:
            channel (int): 0 or 1
            frequency (float): sent as a 32-bit float; its unit and range are the firmware's
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
            TypeError: frequency is not a number.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def PWM_setFrequency_async(self, channel: int, frequency: float) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable PWM_setFrequency, without timeout: Sets a PWM channel's frequency.
        
        Args:
            channel (int): 0 or 1
            frequency (float): sent as a 32-bit float; its unit and range are the firmware's
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
            TypeError: frequency is not a number.
        """
    def PWM_start(self, channel: int, timeout: float = 3) -> int:
        """
        Starts a PWM channel's output.
        
        Args:
            channel (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def PWM_start_async(self, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable PWM_start, without timeout: Starts a PWM channel's output.
        
        Args:
            channel (int): 0 or 1
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
        """
    def PWM_stop(self, channel: int, timeout: float = 3) -> int:
        """
        Stops a PWM channel's output.
        
        Args:
            channel (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def PWM_stop_async(self, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable PWM_stop, without timeout: Stops a PWM channel's output.
        
        Args:
            channel (int): 0 or 1
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            CounterChannelNotAvaliableError: channel is not 0 or 1.
        """
    def _checkPWMChannel(self, channel: typing.Any) -> bool:
        ...
class RelayModule:
    """
    The switching counters of KestrelRelay's six relays; the relays themselves are digital output port 0.
    """
    def Relay_close(self, timeout: float = 3) -> int:
        """
        Nothing to close: tells whether the relay counters exist.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0 on KestrelRelay, -1 on any other class; nothing is sent
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Relay_close_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Relay_close, without timeout: Nothing to close: tells whether the relay counters exist.
        
        Returns:
            int: 0 on KestrelRelay, -1 on any other class; nothing is sent
        """
    def Relay_open(self, timeout: float = 3) -> int:
        """
        Nothing to set up: tells whether the relay counters exist.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0 on KestrelRelay, -1 on any other class; nothing is sent
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Relay_open_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Relay_open, without timeout: Nothing to set up: tells whether the relay counters exist.
        
        Returns:
            int: 0 on KestrelRelay, -1 on any other class; nothing is sent
        """
    def Relay_read(self, index: int = -1, timeout: float = 3) -> list[int]:
        """
        Reads relay switching counters.
        
        Args:
            index (int): relay 0..5, or -1 for every relay (default -1)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: 32-bit counters, one per relay read
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: index is not an int.
            RelayCounterIndexError: index is not in -1..5.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Relay_read_async(self, index: int = -1) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable Relay_read, without timeout: Reads relay switching counters.
        
        Args:
            index (int): relay 0..5, or -1 for every relay (default -1)
        
        Returns:
            list[int]: 32-bit counters, one per relay read
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: index is not an int.
            RelayCounterIndexError: index is not in -1..5.
        """
    def _checkRelayindex(self, index: typing.Any) -> bool:
        ...
class SPIModule:
    """
    The device as an SPI master: open a port, set mode, data size, bit order and prescaler, read, write or exchange bytes.  Chip select is an ordinary digital output.
    """
    def SPI_close(self, port: int, timeout: float = 3) -> int:
        """
        Closes an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def SPI_close_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable SPI_close, without timeout: Closes an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
        """
    def SPI_getPinMap(self) -> dict[int, list[tuple[int, int]]]:
        """
        The SPI ports and the pins they occupy; nothing is sent.
        
        Returns:
            dict[int, list[tuple[int, int]]]: SPI_dict: port -> [(digital port, pin), ...]
        """
    def SPI_getPinMap_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, dict[int, list[tuple[int, int]]]]:
        """
        Awaitable SPI_getPinMap, without timeout: The SPI ports and the pins they occupy; nothing is sent.
        
        Returns:
            dict[int, list[tuple[int, int]]]: SPI_dict: port -> [(digital port, pin), ...]
        """
    def SPI_open(self, port: int, timeout: float = 3) -> int:
        """
        Opens an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code; after reading the pin modes of the port's digital ports (Sys_getPinModeInPort), SPIPortNotAvaliableError for a pin in a mode other than Idle, DI or DO, before OPEN_SPI is sent
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def SPI_open_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable SPI_open, without timeout: Opens an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
        
        Returns:
            int: 0, or a negative firmware error code; after reading the pin modes of the port's digital ports (Sys_getPinModeInPort), SPIPortNotAvaliableError for a pin in a mode other than Idle, DI or DO, before OPEN_SPI is sent
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
        """
    def SPI_read(self, port: int, bytes_to_read: int, timeout: float = 3) -> list[int]:
        """
        Reads bytes.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            bytes_to_read (int): how many bytes, 0..255
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the bytes read (no status: a failure gives a short or empty list)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or bytes_to_read is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            ValueError: bytes_to_read outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def SPI_readAndWrite(self, port: int, write_data: list[int], timeout: float = 3) -> list[int]:
        """
        Writes bytes and reads as many at once.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            write_data (list[int]): the bytes, each 0..255; their count goes out as one byte
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the bytes read while writing (no status)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or write_data is not a list.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            ValueError: a byte or the count outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def SPI_readAndWrite_async(self, port: int, write_data: list[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable SPI_readAndWrite, without timeout: Writes bytes and reads as many at once.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            write_data (list[int]): the bytes, each 0..255; their count goes out as one byte
        
        Returns:
            list[int]: the bytes read while writing (no status)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or write_data is not a list.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            ValueError: a byte or the count outside 0..255.
        """
    def SPI_read_async(self, port: int, bytes_to_read: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable SPI_read, without timeout: Reads bytes.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            bytes_to_read (int): how many bytes, 0..255
        
        Returns:
            list[int]: the bytes read (no status: a failure gives a short or empty list)
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or bytes_to_read is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            ValueError: bytes_to_read outside 0..255.
        """
    def SPI_reset(self, port: int, timeout: float = 3) -> int:
        """
        Resets an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def SPI_reset_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable SPI_reset, without timeout: Resets an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
        """
    def SPI_setDataSize(self, port: int, mode: int, timeout: float = 3) -> int:
        """
        Sets the data size of an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            mode (int): 0 or 1, passed on to the firmware
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            InputTypeNotCorrectError: mode is not an int.
            SPIDataSizeNotVaildError: mode is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def SPI_setDataSize_async(self, port: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable SPI_setDataSize, without timeout: Sets the data size of an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            mode (int): 0 or 1, passed on to the firmware
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            InputTypeNotCorrectError: mode is not an int.
            SPIDataSizeNotVaildError: mode is not 0 or 1.
        """
    def SPI_setFirstBit(self, port: int, mode: int, timeout: float = 3) -> int:
        """
        Sets the bit order of an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            mode (int): 0 or 1, passed on to the firmware
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            InputTypeNotCorrectError: mode is not an int.
            SPIFirstBitNotVaildError: mode is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def SPI_setFirstBit_async(self, port: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable SPI_setFirstBit, without timeout: Sets the bit order of an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            mode (int): 0 or 1, passed on to the firmware
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            InputTypeNotCorrectError: mode is not an int.
            SPIFirstBitNotVaildError: mode is not 0 or 1.
        """
    def SPI_setMode(self, port: int, mode: int, timeout: float = 3) -> int:
        """
        Sets clock polarity and phase: SET_SPI_CPOL, then SET_SPI_CPHA.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            mode (int): 0: CPOL 0 CPHA 0, 1: 0 1, 2: 1 0, 3: 1 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the two statuses or'ed bit by bit: 0 when both succeed
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            InputTypeNotCorrectError: mode is not an int.
            SPIModeNotVaildError: mode is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def SPI_setMode_async(self, port: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable SPI_setMode, without timeout: Sets clock polarity and phase: SET_SPI_CPOL, then SET_SPI_CPHA.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            mode (int): 0: CPOL 0 CPHA 0, 1: 0 1, 2: 1 0, 3: 1 1
        
        Returns:
            int: the two statuses or'ed bit by bit: 0 when both succeed
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            InputTypeNotCorrectError: mode is not an int.
            SPIModeNotVaildError: mode is not 0..3.
        """
    def SPI_setPrescaler(self, port: int, prescaler: int, timeout: float = 3) -> int:
        """
        Sets the clock prescaler of an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            prescaler (int): 2, 4, 8, 16, 32, 64, 128 or 256
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            InputTypeNotCorrectError: prescaler is not an int.
            SPIPrescalerNotVaildError: prescaler is not 2, 4, 8, ... 256.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def SPI_setPrescaler_async(self, port: int, prescaler: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable SPI_setPrescaler, without timeout: Sets the clock prescaler of an SPI port.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            prescaler (int): 2, 4, 8, 16, 32, 64, 128 or 256
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            InputTypeNotCorrectError: prescaler is not an int.
            SPIPrescalerNotVaildError: prescaler is not 2, 4, 8, ... 256.
        """
    def SPI_write(self, port: int, write_data: list[int], timeout: float = 3) -> int:
        """
        Writes bytes.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            write_data (list[int]): the bytes, each 0..255; their count goes out as one byte
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or write_data is not a list.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            ValueError: a byte or the count outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def SPI_write_async(self, port: int, write_data: list[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable SPI_write, without timeout: Writes bytes.
        
        Args:
            port (int): SPI port, a key of SPI_dict
            write_data (list[int]): the bytes, each 0..255; their count goes out as one byte
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or write_data is not a list.
            SPIPortNotAvaliableError: port is not a key of SPI_dict.
            ValueError: a byte or the count outside 0..255.
        """
    def _SPI_getPinMapPort(self, SPI_port: typing.Any) -> list[int]:
        """
        The digital ports the pins of an SPI port lie on, each once.
        """
    def _SPI_setCPHA(self, port: int, phase: int, timeout: float = 3) -> int:
        """
        Sends SET_SPI_CPHA; nothing is checked.
        
        Args:
            port (int): SPI port (not checked)
            phase (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _SPI_setCPHA_async(self, port: int, phase: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _SPI_setCPHA, without timeout: Sends SET_SPI_CPHA; nothing is checked.
        
        Args:
            port (int): SPI port (not checked)
            phase (int): 0 or 1
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def _SPI_setCPOL(self, port: int, polarity: int, timeout: float = 3) -> int:
        """
        Sends SET_SPI_CPOL; nothing is checked.
        
        Args:
            port (int): SPI port (not checked)
            polarity (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _SPI_setCPOL_async(self, port: int, polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _SPI_setCPOL, without timeout: Sends SET_SPI_CPOL; nothing is checked.
        
        Args:
            port (int): SPI port (not checked)
            polarity (int): 0 or 1
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def _checkSPIDataSize(self, mode: typing.Any) -> None:
        ...
    def _checkSPIFirstBit(self, mode: typing.Any) -> None:
        ...
    def _checkSPIMode(self, mode: typing.Any) -> None:
        ...
    def _checkSPIPinState(self, port: int, allow_state: collections.abc.Sequence[str], timeout: float = 3) -> None:
        """
        Reads the pin modes of the port's digital ports and tests every pin of the port.
        
        Args:
            port (int): SPI port, a key of SPI_dict (not checked for its type)
            allow_state (collections.abc.Sequence[str]): mode names a pin may be in, e.g. ['Idle', 'DI', 'DO']
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            None: None; SPIPortNotAvaliableError for a pin in another mode
        
        Raises, before anything is sent:
            KeyError: port is not a key of SPI_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _checkSPIPinState_async(self, port: int, allow_state: collections.abc.Sequence[str]) -> collections.abc.Coroutine[typing.Any, typing.Any, None]:
        """
        Awaitable _checkSPIPinState, without timeout: Reads the pin modes of the port's digital ports and tests every pin of the port.
        
        Args:
            port (int): SPI port, a key of SPI_dict (not checked for its type)
            allow_state (collections.abc.Sequence[str]): mode names a pin may be in, e.g. ['Idle', 'DI', 'DO']
        
        Returns:
            None: None; SPIPortNotAvaliableError for a pin in another mode
        
        Raises, before anything is sent:
            KeyError: port is not a key of SPI_dict.
        """
    def _checkSPIPort(self, port: typing.Any) -> None:
        ...
    def _checkSPIPrescaler(self, mode: typing.Any) -> None:
        ...
class SystemAnalogModule:
    """
    What only the Wi-Fi analog models have: acceleration, battery, temperature.
    """
    def Wifi_readAcceleration(self, timeout: float = 3) -> list[int]:
        """
        Reads the three acceleration axes.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: x, y, z as raw 16-bit words
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_readAccleration_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable Wifi_readAcceleration, without timeout: Reads the three acceleration axes.
        
        Returns:
            list[int]: x, y, z as raw 16-bit words
        """
    def Wifi_readBattery(self, timeout: float = 3) -> int:
        """
        Reads the battery.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the raw 16-bit battery word; also kept in battery
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_readBattery_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Wifi_readBattery, without timeout: Reads the battery.
        
        Returns:
            int: the raw 16-bit battery word; also kept in battery
        """
    def Wifi_readThermo(self, timeout: float = 3) -> float:
        """
        Reads the board temperature.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            float: the signed 16-bit reading divided by 128; also kept in thermo
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_readThermo_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, float]:
        """
        Awaitable Wifi_readThermo, without timeout: Reads the board temperature.
        
        Returns:
            float: the signed 16-bit reading divided by 128; also kept in thermo
        """
    def _Wifi_resetAIBuffer(self, timeout: float = 3) -> int:
        """
        Empties the AI buffer.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Wifi_resetAIBuffer_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Wifi_resetAIBuffer, without timeout: Empties the AI buffer.
        
        Returns:
            int: 0, or a negative firmware error code
        """
    @property
    def battery(self) -> int:
        ...
    @property
    def thermo(self) -> float:
        ...
class SystemModule:
    """
    What every firmware offers: identity, real-time clock, pin and slot modes, reboot, EEPROM and factory services.
    """
    def Sys_getDriverInfo(self, timeout: float = 3) -> list[str]:
        """
        Reads the firmware's driver information.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[str]: the driver text split at each "_"; also kept in driver_info
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_getDriverInfo_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, list[str]]:
        """
        Awaitable Sys_getDriverInfo, without timeout: Reads the firmware's driver information.
        
        Returns:
            list[str]: the driver text split at each "_"; also kept in driver_info
        """
    def Sys_getMode(self, slot: int, timeout: float = 3) -> list[str]:
        """
        Reads the modes of a Trellis slot.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[str]: "Idle", "DI", "DO", "DIO", "Motion", "AIO" or "Switch" per entry
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_getMode_async(self, slot: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[str]]:
        """
        Awaitable Sys_getMode, without timeout: Reads the modes of a Trellis slot.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
        
        Returns:
            list[str]: "Idle", "DI", "DO", "DIO", "Motion", "AIO" or "Switch" per entry
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
        """
    def Sys_getPinModeInPort(self, port: int, timeout: float = 3) -> list[str]:
        """
        Reads the mode of each pin of a port.
        
        Args:
            port (int): port number
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[str]: one name per pin, by pin: "Disabled", "Idle", "DI", "DO", "UART", "I2C", "SPI", "CAN", "PWM" or "ADC"; an odd pin count gives one name more
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_getPinModeInPort_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[str]]:
        """
        Awaitable Sys_getPinModeInPort, without timeout: Reads the mode of each pin of a port.
        
        Args:
            port (int): port number
        
        Returns:
            list[str]: one name per pin, by pin: "Disabled", "Idle", "DI", "DO", "UART", "I2C", "SPI", "CAN", "PWM" or "ADC"; an odd pin count gives one name more
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
        """
    def Sys_getPythonVersion(self, timeout: float = 3) -> str:
        """
        The library's version; nothing is sent and timeout has no effect.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            str: pyorv.__version__
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_getPythonVersion_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, str]:
        """
        Awaitable Sys_getPythonVersion, without timeout: The library's version; nothing is sent and timeout has no effect.
        
        Returns:
            str: pyorv.__version__
        """
    def Sys_getRTC(self, timeout: float = 3) -> str:
        """
        Reads the device's real-time clock.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            str: "YYYY-MM-DD, hh:mm:ss"; also kept in rtc_time
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_getRTC_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, str]:
        """
        Awaitable Sys_getRTC, without timeout: Reads the device's real-time clock.
        
        Returns:
            str: "YYYY-MM-DD, hh:mm:ss"; also kept in rtc_time
        """
    def Sys_getSerialNumber(self, timeout: float = 3) -> str:
        """
        Reads the device's serial number.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            str: the serial number (8 characters); also kept in serial_number
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_getSerialNumber_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, str]:
        """
        Awaitable Sys_getSerialNumber, without timeout: Reads the device's serial number.
        
        Returns:
            str: the serial number (8 characters); also kept in serial_number
        """
    def Sys_reboot(self, timeout: float = 3) -> int:
        """
        Reboots the device.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_rebootOnBootloader(self, timeout: float = 3) -> int:
        """
        Reboots the device into its bootloader.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_rebootOnBootloader_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Sys_rebootOnBootloader, without timeout: Reboots the device into its bootloader.
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def Sys_reboot_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Sys_reboot, without timeout: Reboots the device.
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def Sys_setAIOMode(self, slot: int, timeout: float = 3) -> int:
        """
        Puts a Trellis slot into analog input and output mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_setAIOMode_async(self, slot: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Sys_setAIOMode, without timeout: Puts a Trellis slot into analog input and output mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
        """
    def Sys_setDIMode(self, slot: int, timeout: float = 3) -> int:
        """
        Puts a Trellis slot into digital input mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_setDIMode_async(self, slot: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Sys_setDIMode, without timeout: Puts a Trellis slot into digital input mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
        """
    def Sys_setDIOMode(self, slot: int, timeout: float = 3) -> int:
        """
        Puts a Trellis slot into digital input and output mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_setDIOMode_async(self, slot: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Sys_setDIOMode, without timeout: Puts a Trellis slot into digital input and output mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
        """
    def Sys_setDOMode(self, slot: int, timeout: float = 3) -> int:
        """
        Puts a Trellis slot into digital output mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_setDOMode_async(self, slot: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Sys_setDOMode, without timeout: Puts a Trellis slot into digital output mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
        """
    def Sys_setIdleMode(self, slot: int, timeout: float = 3) -> int:
        """
        Puts a Trellis slot into idle mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_setIdleMode_async(self, slot: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Sys_setIdleMode, without timeout: Puts a Trellis slot into idle mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
        """
    def Sys_setMotionMode(self, slot: int, timeout: float = 3) -> int:
        """
        Puts a Trellis slot into motion mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_setMotionMode_async(self, slot: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Sys_setMotionMode, without timeout: Puts a Trellis slot into motion mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
        """
    def Sys_setRTC(self, year: int, month: int, day: int, hour: int, minute: int, second: int, timeout: float = 3) -> int:
        """
        Sets the device's real-time clock.
        
        Args:
            year (int): 1900..2155; 0..99 counts from 1900
            month (int): 1..12
            day (int): 1..31
            hour (int): 0..23
            minute (int): 0..59
            second (int): 0..59
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an argument that is not an int.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_setRTC_async(self, year: int, month: int, day: int, hour: int, minute: int, second: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Sys_setRTC, without timeout: Sets the device's real-time clock.
        
        Args:
            year (int): 1900..2155; 0..99 counts from 1900
            month (int): 1..12
            day (int): 1..31
            hour (int): 0..23
            minute (int): 0..59
            second (int): 0..59
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an argument that is not an int.
        """
    def Sys_setSwitchMode(self, slot: int, timeout: float = 3) -> int:
        """
        Puts a Trellis slot into switch mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Sys_setSwitchMode_async(self, slot: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Sys_setSwitchMode, without timeout: Puts a Trellis slot into switch mode.
        
        Args:
            slot (int): Trellis slot: 1, 2 or 4
        
        Returns:
            int: the firmware's status byte, as it comes
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
        """
    def _Sys_setSlotMode(self, slot: int, mode: int, timeout: float = 3) -> int:
        """
        Writes a Trellis slot's mode number.
        
        Args:
            slot (int): 1, 2 or 4
            mode (int): 0 idle .. 6 switch
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the firmware's status byte
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Sys_setSlotMode_async(self, slot: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Sys_setSlotMode, without timeout: Writes a Trellis slot's mode number.
        
        Args:
            slot (int): 1, 2 or 4
            mode (int): 0 idle .. 6 switch
        
        Returns:
            int: the firmware's status byte
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: slot is not an int.
            TrellisPortNotAvaliableError: slot is not 1, 2 or 4.
        """
    def _checkTrellisSlot(self, slot: typing.Any) -> None:
        ...
    def _getDriverInfo_dev(self, mode: int, timeout: float = 3) -> str:
        """
        Reads the driver information of a mode, unsplit.
        
        Args:
            mode (int)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            str: the driver text
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _getDriverInfo_dev_async(self, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, str]:
        """
        Awaitable _getDriverInfo_dev, without timeout: Reads the driver information of a mode, unsplit.
        
        Args:
            mode (int)
        
        Returns:
            str: the driver text
        """
    def _getEEPROMDevice(self, device_number: int, timeout: float = 3) -> list[int]:
        """
        Reads an EEPROM device.
        
        Args:
            device_number (int)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: bytes
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _getEEPROMDevice_async(self, device_number: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _getEEPROMDevice, without timeout: Reads an EEPROM device.
        
        Args:
            device_number (int)
        
        Returns:
            list[int]: bytes
        """
    def _getEEPROMPage(self, page_number: int, timeout: float = 3) -> list[int]:
        """
        Reads an EEPROM page.
        
        Args:
            page_number (int)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: bytes
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _getEEPROMPage_async(self, page_number: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _getEEPROMPage, without timeout: Reads an EEPROM page.
        
        Args:
            page_number (int)
        
        Returns:
            list[int]: bytes
        """
    def _getThreads(self, timeout: float = 3) -> str:
        """
        Reads the firmware's thread report.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            str: the report
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _getThreads_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, str]:
        """
        Awaitable _getThreads, without timeout: Reads the firmware's thread report.
        
        Returns:
            str: the report
        """
    def _resetFactory(self, timeout: float = 3) -> int:
        """
        Restores the factory settings.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _resetFactory_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _resetFactory, without timeout: Restores the factory settings.
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def _setEEPROMByte(self, page_number: int, byte_index: int, value: int, timeout: float = 3) -> int:
        """
        Writes one EEPROM byte.
        
        Args:
            page_number (int)
            byte_index (int)
            value (int): 0..255
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _setEEPROMByte_async(self, page_number: int, byte_index: int, value: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _setEEPROMByte, without timeout: Writes one EEPROM byte.
        
        Args:
            page_number (int)
            byte_index (int)
            value (int): 0..255
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def _setEEPROMPage(self, page_number: int, int_list: collections.abc.Sequence[int], timeout: float = 3) -> int:
        """
        Writes an EEPROM page.
        
        Args:
            page_number (int)
            int_list (collections.abc.Sequence[int]): bytes
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _setEEPROMPage_async(self, page_number: int, int_list: collections.abc.Sequence[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _setEEPROMPage, without timeout: Writes an EEPROM page.
        
        Args:
            page_number (int)
            int_list (collections.abc.Sequence[int]): bytes
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def _setSerialNumber(self, serial_num: str, timeout: float = 3) -> int:
        """
        Writes the serial number.
        
        Args:
            serial_num (str)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _setSerialNumber_async(self, serial_num: str) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _setSerialNumber, without timeout: Writes the serial number.
        
        Args:
            serial_num (str)
        
        Returns:
            int: 0, or a negative firmware error code
        """
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
    """
    The Wi-Fi models' LEDs, power state and radio settings.
    """
    def Wifi_getChargeStatus(self, timeout: float = 3) -> int:
        """
        Reads the battery charge line.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0 or 1
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_getChargeStatus_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Wifi_getChargeStatus, without timeout: Reads the battery charge line.
        
        Returns:
            int: 0 or 1
        """
    def Wifi_getPowerGoodStatus(self, timeout: float = 3) -> int:
        """
        Reads the power-good line.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0 or 1
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_getPowerGoodStatus_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Wifi_getPowerGoodStatus, without timeout: Reads the power-good line.
        
        Returns:
            int: 0 or 1
        """
    def Wifi_getWifiBandWidth(self, timeout: float = 3) -> int:
        """
        Reads the radio bandwidth setting.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the firmware's bandwidth number, 0..255; also kept in bandwidth
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_getWifiBandWidth_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Wifi_getWifiBandWidth, without timeout: Reads the radio bandwidth setting.
        
        Returns:
            int: the firmware's bandwidth number, 0..255; also kept in bandwidth
        """
    def Wifi_getWifiConfiguration(self, timeout: float = 3) -> list[int]:
        """
        Reads the radio configuration.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: [retry_wifi_times, ap_time], 16-bit each
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_getWifiConfiguration_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable Wifi_getWifiConfiguration, without timeout: Reads the radio configuration.
        
        Returns:
            list[int]: [retry_wifi_times, ap_time], 16-bit each
        """
    def Wifi_readRSSI(self, timeout: float = 3) -> int:
        """
        Reads the received signal strength.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the reading less 256, -256..-1; also kept in rssi
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_readRSSI_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Wifi_readRSSI, without timeout: Reads the received signal strength.
        
        Returns:
            int: the reading less 256, -256..-1; also kept in rssi
        """
    def Wifi_resetLED(self, timeout: float = 3) -> int:
        """
        Turns the three LEDs off.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: always 0 (the reply is not read)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_resetLED_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Wifi_resetLED, without timeout: Turns the three LEDs off.
        
        Returns:
            int: always 0 (the reply is not read)
        """
    def Wifi_setAP(self, timeout: float = 3) -> int:
        """
        Switches the device into access-point mode.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_setAP_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Wifi_setAP, without timeout: Switches the device into access-point mode.
        
        Returns:
            int: 0, or a negative firmware error code
        """
    def Wifi_setBandwidth(self, bandwidth: int, timeout: float = 3) -> int:
        """
        Sets the radio bandwidth.
        
        Args:
            bandwidth (int): 0 or 1; a larger number is sent as 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: bandwidth is not an int.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_setBandwidth_async(self, bandwidth: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Wifi_setBandwidth, without timeout: Sets the radio bandwidth.
        
        Args:
            bandwidth (int): 0 or 1; a larger number is sent as 1
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: bandwidth is not an int.
        """
    def Wifi_setBlueLED(self, value: int, timeout: float = 3) -> int:
        """
        Turns the blue LED on or off.
        
        Args:
            value (int): above 0 lights the LED, 0 or below turns it off
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: always 0 (the reply is not read)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_setBlueLED_async(self, value: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Wifi_setBlueLED, without timeout: Turns the blue LED on or off.
        
        Args:
            value (int): above 0 lights the LED, 0 or below turns it off
        
        Returns:
            int: always 0 (the reply is not read)
        """
    def Wifi_setGreenLED(self, value: int, timeout: float = 3) -> int:
        """
        Turns the green LED on or off.
        
        Args:
            value (int): above 0 lights the LED, 0 or below turns it off
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: always 0 (the reply is not read)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_setGreenLED_async(self, value: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Wifi_setGreenLED, without timeout: Turns the green LED on or off.
        
        Args:
            value (int): above 0 lights the LED, 0 or below turns it off
        
        Returns:
            int: always 0 (the reply is not read)
        """
    def Wifi_setRedLED(self, value: int, timeout: float = 3) -> int:
        """
        Turns the red LED on or off.
        
        Args:
            value (int): above 0 lights the LED, 0 or below turns it off
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: always 0 (the reply is not read)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Wifi_setRedLED_async(self, value: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Wifi_setRedLED, without timeout: Turns the red LED on or off.
        
        Args:
            value (int): above 0 lights the LED, 0 or below turns it off
        
        Returns:
            int: always 0 (the reply is not read)
        """
    def _setWifiConfiguration(self, retry_wifi_times: int, ap_time: int, timeout: float = 3) -> int:
        """
        Writes the radio configuration.
        
        Args:
            retry_wifi_times (int): 0..65535
            ap_time (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an argument that is not an int.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _setWifiConfiguration_async(self, retry_wifi_times: int, ap_time: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _setWifiConfiguration, without timeout: Writes the radio configuration.
        
        Args:
            retry_wifi_times (int): 0..65535
            ap_time (int): 0..65535
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an argument that is not an int.
        """
    @property
    def bandwidth(self) -> int:
        ...
    @property
    def rssi(self) -> int:
        ...
class BroadcastModule:
    """
    Discovery over UDP broadcast: find devices, reboot one or set its address by MAC. Each broadcast collects answers for PACKET_TIMEOUT seconds.
    """
    def Bcst_checkMACAndReboot(self, mac_addr: str) -> list[int]:
        """
        Reboots the device with a MAC address.
        
        Args:
            mac_addr (str): "aa:bb:cc:dd:ee:ff"
        
        Returns:
            list[int]: one status byte per answering device; empty when none answers
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: mac_addr is not a str.
            ValueError: mac_addr is not six hex numbers.
        """
    def Bcst_checkMACAndReboot_async(self, mac_addr: str) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable Bcst_checkMACAndReboot, without timeout: Reboots the device with a MAC address.
        
        Args:
            mac_addr (str): "aa:bb:cc:dd:ee:ff"
        
        Returns:
            list[int]: one status byte per answering device; empty when none answers
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: mac_addr is not a str.
            ValueError: mac_addr is not six hex numbers.
        """
    def Bcst_checkMACAndSetIP(self, ip_addr: str, mac_addr: str, subnet_mask: str) -> list[int]:
        """
        Sets the IP address and mask of the device with a MAC address.
        
        Args:
            ip_addr (str): dotted IPv4 address
            mac_addr (str): "aa:bb:cc:dd:ee:ff"
            subnet_mask (str): dotted IPv4 mask
        
        Returns:
            list[int]: one status byte per answering device; empty when none answers
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an argument that is not a str.
            OSError, ValueError: a malformed address.
        """
    def Bcst_checkMACAndSetIP_async(self, ip_addr: str, mac_addr: str, subnet_mask: str) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable Bcst_checkMACAndSetIP, without timeout: Sets the IP address and mask of the device with a MAC address.
        
        Args:
            ip_addr (str): dotted IPv4 address
            mac_addr (str): "aa:bb:cc:dd:ee:ff"
            subnet_mask (str): dotted IPv4 mask
        
        Returns:
            list[int]: one status byte per answering device; empty when none answers
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: an argument that is not a str.
            OSError, ValueError: a malformed address.
        """
    def Bcst_enumerateNetworkDevices(self) -> list[list[str]]:
        """
        Finds the network devices that answer a broadcast.
        
        Returns:
            list[list[str]]: [ip_addr, submask, mac_addr, firmware_model] per device, in no order; empty when none answers
        """
    def Bcst_enumerateNetworkDevices_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, list[list[str]]]:
        """
        Awaitable Bcst_enumerateNetworkDevices, without timeout: Finds the network devices that answer a broadcast.
        
        Returns:
            list[list[str]]: [ip_addr, submask, mac_addr, firmware_model] per device, in no order; empty when none answers
        """
    def Bcst_enumerateUSBDevices(self) -> list[list[str]]:
        """
        Lists the USB devices of the family; blocking, no connect needed.
        
        Returns:
            list[list[str]]: one entry per device: its serial number and product name
        """
class DeviceFinder(BroadcastDevice, BroadcastModule):
    """
    Finds devices by broadcast: a BroadcastDevice with the BroadcastModule operations. DeviceFinder(verbose=True, broadcast_addr=None); connect() before broadcasting.
    """
    def __init__(self, verbose: bool = True, broadcast_addr: str | None = None) -> None:
        ...
class HeronAinImu(WifiDevice, SystemModule, SystemAnalogModule, NetworkModule, WifiModule, AIModule):
    """
    HeronAinImu (Heron-Ain-Imu): device class WifiDevice; modules System, SystemAnalog, Network, Wifi, AI, AHRS.
    
    HeronAinImu(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class HeronAin(WifiDevice, SystemModule, SystemAnalogModule, NetworkModule, WifiModule, AIModule):
    """
    HeronAin (Heron-Ain): device class WifiDevice; modules System, SystemAnalog, Network, Wifi, AI.
    
    HeronAin(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class HeronAinPlus(WifiDevice, SystemModule, SystemAnalogModule, NetworkModule, WifiModule, AIModule):
    """
    HeronAinPlus (Heron-Ain-Plus): device class WifiDevice; modules System, SystemAnalog, Network, Wifi, AI.
    
    HeronAinPlus(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class Trellis(ETHDevice, SystemModule, NetworkModule, AIModule, AOModule, DIOModule):
    """
    Trellis (Trellis): device class ETHDevice; modules System, Network, AI, AO, DIO, MCX514.
    
    Trellis(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class MerlinDrive(ETHDevice, SystemModule, NetworkModule):
    """
    MerlinDrive (Merlin-Drive): device class ETHDevice; modules System, Network, TMC5240.
    
    MerlinDrive(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class MerlinAxis(ETHDevice, SystemModule, NetworkModule):
    """
    MerlinAxis (Merlin-Axis): device class ETHDevice; modules MCX514, System, Network.
    
    MerlinAxis(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelAin(ETHDevice, SystemModule, NetworkModule, AIModule):
    """
    KestrelAin (Kestrel-Ain): device class ETHDevice; modules System, Network, AI.
    
    KestrelAin(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelDio(ETHDevice, SystemModule, NetworkModule, DIOModule, PWMModule):
    """
    KestrelDio (Kestrel-Dio): device class ETHDevice; modules System, Network, DIO, PWM.
    
    KestrelDio(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelDioX(ETHDevice, SystemModule, NetworkModule, DIOModule):
    """
    KestrelDioX (Kestrel-Dio_X): device class ETHDevice; modules System, Network, DIO.
    
    KestrelDioX(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelCin(ETHDevice, SystemModule, NetworkModule, AI24BitModule):
    """
    KestrelCin (Kestrel-Cin): device class ETHDevice; modules System, Network, AI24Bit.
    
    KestrelCin(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelCvin(ETHDevice, SystemModule, NetworkModule, AI24BitModule):
    """
    KestrelCvin (Kestrel-Cvin): device class ETHDevice; modules System, Network, AI24Bit.
    
    KestrelCvin(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelRelay(ETHDevice, SystemModule, NetworkModule, DIOModule, RelayModule):
    """
    KestrelRelay (Kestrel-Relay): device class ETHDevice; modules System, Network, DIO, Relay.
    
    KestrelRelay(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelAout(ETHDevice, SystemModule, NetworkModule, AOModule):
    """
    KestrelAout (Kestrel-Aout): device class ETHDevice; modules System, Network, AO.
    
    KestrelAout(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelRes(ETHDevice, SystemModule, NetworkModule, DPOTModule):
    """
    KestrelRes (Kestrel-Res): device class ETHDevice; modules System, Network, DPOT.
    
    KestrelRes(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelTherm(ETHDevice, SystemModule, NetworkModule):
    """
    KestrelTherm (Kestrel-Therm): device class ETHDevice; modules System, Network, Thermocouple.
    
    KestrelTherm(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverDio(USBDevice, SystemModule, I2CModule, SPIModule, DIOModule, CounterModule, PWMModule):
    """
    PloverDio (Plover-Dio): device class USBDevice; modules System, UART, I2C, SPI, DIO, Counter, PWM.
    
    PloverDio(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverAin(USBDevice, SystemModule, I2CModule, SPIModule, AIModule, DIOModule, CounterModule, PWMModule):
    """
    PloverAin (Plover-Ain): device class USBDevice; modules System, UART, I2C, SPI, AI, DIO, Counter, PWM.
    
    PloverAin(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverTc(USBDevice, SystemModule, I2CModule, SPIModule, DIOModule, CounterModule, PWMModule):
    """
    PloverTc (Plover-Tc): device class USBDevice; modules System, UART, I2C, SPI, Thermocouple, DIO, Counter, PWM.
    
    PloverTc(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverCan(USBDevice, SystemModule, I2CModule, SPIModule, DIOModule, CounterModule, PWMModule):
    """
    PloverCan (Plover-Can): device class USBDevice; modules System, UART, I2C, SPI, CAN, DIO, Counter, PWM.
    
    PloverCan(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverSink(USBDevice, SystemModule, DIOModule, CounterModule, PWMModule):
    """
    PloverSink (Plover-Sink): device class USBDevice; modules System, DIO, Counter, PWM.
    
    PloverSink(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverAio(USBDevice, SystemModule, I2CModule, AIModule, AOModule, DIOModule, CounterModule, PWMModule):
    """
    PloverAio (Plover-Aio): device class USBDevice; modules System, UART, I2C, AI, AO, DIO, Counter, PWM.
    
    PloverAio(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverRtd(USBDevice, SystemModule, I2CModule, SPIModule, DIOModule, CounterModule, PWMModule):
    """
    PloverRtd (Plover-Rtd): device class USBDevice; modules System, UART, I2C, SPI, ThermalResistance, DIO, Counter, PWM.
    
    PloverRtd(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
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
def adjustDataList(data_list: collections.abc.Sequence[typing.Any], list_length: int = 8, padding_num: typing.Any = 0) -> list[typing.Any]:
    """
    Exactly list_length items: cut, or padded on the right with padding_num.
    """
def changeToTrellisPort(slot: int) -> int:
    """
    The firmware's port of a Trellis slot.
    """
def checkEachItemInRange(int_list: collections.abc.Sequence[float], low: float = 0, high: float = 255, msg: str | None = None) -> None:
    """
    Raises InputDataNotInRangeError (with msg) at the first item outside low..high.
    """
def checkFirmwareError(arg0: typing.Any) -> int:
    """
    Raises the error of a firmware status byte; 0 for status 0.
    """
def checkFuncPinMap(cell: collections.abc.Sequence[int], pinmap_list: collections.abc.Sequence[typing.Any], allow_state_list: collections.abc.Sequence[typing.Any]) -> bool:
    """
    Whether pinmap_list[pin] of cell (port, pin) is among allow_state_list.
    """
def checkInputType(data: typing.Any, correct_type: type | tuple[type, ...] = ...) -> None:
    """
    Raises InputTypeNotCorrectError unless data is of correct_type (a type or a tuple of them).
    """
def checkInputTypeConsistent(data: typing.Any, data2: typing.Any) -> None:
    """
    Raises InputTypeNotConsistentError unless data and data2 have the same type.
    """
def checkPinMap(cell_list: collections.abc.Sequence[collections.abc.Sequence[int]], pinmap_list: collections.abc.Sequence[typing.Any], allow_state_list: collections.abc.Sequence[typing.Any]) -> bool:
    """
    Whether every cell passes checkFuncPinMap.
    """
def clearBit(number: int, index: int) -> int:
    """
    The number with bit index set to 0.
    """
def coerce(list_: collections.abc.Sequence[float], lower: float = 0, upper: float = 1) -> list[typing.Any]:
    """
    Each element clipped into lower..upper.
    """
def convert2U8ToI16(int_list: collections.abc.Sequence[int]) -> int:
    """
    The number in the bytes of int_list, high byte first (the name gives width and kind).
    """
def convert2U8ToU16(int_list: collections.abc.Sequence[int]) -> int:
    """
    The number in the bytes of int_list, high byte first (the name gives width and kind).
    """
def convert4U8ToF32(int_list: collections.abc.Sequence[int]) -> float:
    """
    The number in the bytes of int_list, high byte first (the name gives width and kind).
    """
def convert4U8ToI32(int_list: collections.abc.Sequence[int]) -> int:
    """
    The number in the bytes of int_list, high byte first (the name gives width and kind).
    """
def convert4U8ToU32(int_list: collections.abc.Sequence[int]) -> int:
    """
    The number in the bytes of int_list, high byte first (the name gives width and kind).
    """
def convert8U8ToF64(int_list: collections.abc.Sequence[int]) -> float:
    """
    The number in the bytes of int_list, high byte first (the name gives width and kind).
    """
def convert8U8ToI64(int_list: collections.abc.Sequence[int]) -> int:
    """
    The number in the bytes of int_list, high byte first (the name gives width and kind).
    """
def convert8U8ToU64(int_list: collections.abc.Sequence[int]) -> int:
    """
    The number in the bytes of int_list, high byte first (the name gives width and kind).
    """
def convertF32To4U8(value: float) -> bytes:
    """
    A number as a 32-bit float, 4 bytes, high byte first.
    """
def convertF64To8U8(value: float) -> bytes:
    """
    A number as a 64-bit float, 8 bytes, high byte first.
    """
def convertI16To2U8(value: int) -> bytes:
    """
    The value as bytes, high byte first (the name gives width and kind).
    """
def convertI32To4U8(value: int) -> bytes:
    """
    The value as bytes, high byte first (the name gives width and kind).
    """
def convertI64To8U8(value: int) -> bytes:
    """
    The value as bytes, high byte first (the name gives width and kind).
    """
def convertIPAddrTo4U8(value: str) -> bytes:
    """
    A dotted IPv4 address as 4 bytes.
    """
def convertIndexAndBinaryListsToInt(index_list: collections.abc.Sequence[int], binary_list: collections.abc.Sequence[int]) -> int:
    """
    The word with binary_list[i] at bit index_list[i].
    """
def convertIndexListToInt(index_list: collections.abc.Sequence[int]) -> int:
    """
    The mask with a bit set for each index.
    """
def convertIntToBinaryList(value_int: int, width: int) -> list[int]:
    """
    The low width bits of value_int as a list of 0 and 1, bit 0 first.
    """
def convertIntToIndexList(value_int: int) -> list[int]:
    """
    The indices of the set bits of value_int, lowest first.
    """
def convertMACAddrTo6U8(str_: str) -> list[int]:
    """
    "aa:bb:cc:dd:ee:ff" as a list of 6 bytes.
    """
def convertStrToU8List(str_: str) -> list[int]:
    """
    Text as a list of its bytes.
    """
def convertU16To2U8(value: int) -> bytes:
    """
    The value as bytes, high byte first (the name gives width and kind).
    """
def convertU32To4U8(value: int) -> bytes:
    """
    The value as bytes, high byte first (the name gives width and kind).
    """
def convertU64To8U8(value: int) -> bytes:
    """
    The value as bytes, high byte first (the name gives width and kind).
    """
def convertU8ListToStr(int_list: collections.abc.Sequence[int]) -> str:
    """
    Bytes (or a list of them) as text.
    """
def fillBit(number: int, index: int) -> int:
    """
    The number with bit index set to 1.
    """
def printGenericError(arg0: typing.Any) -> None:
    """
    Prints "<ClassName>: <text>" of an error.
    """
def readBit(number: int, index: int) -> int:
    """
    Bit index of number, 0 or 1.
    """
def writeBit(number: int, index: int, value: int) -> int:
    """
    The number with bit index set to value (0 or 1).
    """
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
