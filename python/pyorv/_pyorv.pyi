"""
ORV Python driver: the compiled core
"""
from __future__ import annotations
import collections.abc
import numpy
import numpy.typing
import typing
from . import _sim
__all__: list[str] = ['AHRSModeNotAvaliableError', 'AHRSModule', 'AHRSPortNotAvaliableError', 'AHRSQueueOverflowWarning', 'AHRS_START', 'AI24BitModule', 'AICSNotAvaliableError', 'AIChannelNotAvaliableError', 'AIModeNotAvaliableError', 'AIModule', 'AIPortNotAvaliableError', 'AIQueueOverflowWarning', 'AIRateNotVaildError', 'AOChannelNotAvaliableError', 'AOFormNotAvaliableError', 'AOModeNotVaildError', 'AOModule', 'AOPortNotAvaliableError', 'AORateNotVaildError', 'AOSpanNotVaildError', 'APINotSupportError', 'BROADCAST_CMD_LIST', 'BroadcastDevice', 'BroadcastModule', 'CANDataLengthNotVaildError', 'CANFrame', 'CANModule', 'CANPortNotAvaliableError', 'CANQueueOverflowWarning', 'CANSpeedNotVaildError', 'CANTXNotVaildError', 'CANTXPriorityNotVaildError', 'CATEGORY_CONSOLE_DICT', 'CATEGORY_CONSOLE_LIST', 'CHECK_CALCULATUON', 'CHECK_MAC_AND_REBOOT', 'CHECK_MAC_AND_SET_IP', 'CMD_CR', 'CMD_CR_2', 'CMD_INDEX', 'CMD_INDEX_2', 'CMD_LF', 'CMD_LF_2', 'CMD_STX', 'CMD_STX_2', 'CONNECTION_TIMEOUT', 'COPYRIGHT', 'Client', 'CounterChannelNotAvaliableError', 'CounterModule', 'DIOModule', 'DIPortNotAvaliableError', 'DOPortNotAvaliableError', 'DPOTChannelNotAvaliableError', 'DPOTModule', 'DPOTPortNotAvaliableError', 'DataLogger', 'Device', 'DeviceClosedError', 'DeviceFinder', 'ECHO_DELAY', 'ETHDevice', 'EXAMPLE_CONSOLE_DICT', 'EXAMPLE_GUI_DICT', 'Error', 'ExtLibNotFoundWarning', 'FirmwareAIError', 'FirmwareAOError', 'FirmwareBootloaderError', 'FirmwareCANError', 'FirmwareCoreError', 'FirmwareDIOError', 'FirmwareDriveError', 'FirmwareEEPROMError', 'FirmwareEnableError', 'FirmwareEncoderError', 'FirmwareHALIndexError', 'FirmwareI2CError', 'FirmwareMotionError', 'FirmwareOLEDError', 'FirmwareORVIndexError', 'FirmwareOtherError', 'FirmwarePWMError', 'FirmwareParserError', 'FirmwarePinIndexError', 'FirmwarePulseError', 'FirmwareRTCError', 'FirmwareRelayError', 'FirmwareSPIError', 'FirmwareTCPError', 'FirmwareTIMError', 'FirmwareThermalError', 'FirmwareUARTError', 'FirmwareUDPError', 'FirmwareUSBError', 'GET_DEVICE_INFO', 'GET_DRIVER_INFO', 'HANDLE_DICT', 'HANDLE_LIST', 'HANDLE_PROPERTIES', 'HeronAin', 'HeronAinImu', 'HeronAinPlus', 'I2CAddressSizeNotVaildError', 'I2CClockNotSupportError', 'I2CModule', 'I2CPortNotAvaliableError', 'IniFileExtensionNameError', 'IniFileNotFoundError', 'InputDataNotInRangeError', 'InputTypeNotConsistentError', 'InputTypeNotCorrectError', 'KestrelAin', 'KestrelAout', 'KestrelCin', 'KestrelCvin', 'KestrelDio', 'KestrelDioX', 'KestrelRelay', 'KestrelRes', 'KestrelTherm', 'LABEL_DICT', 'LinkNotOpenError', 'MCX514Driver', 'MCX514Module', 'MOTION', 'MOTION_00_JK', 'MOTION_01_DJ', 'MOTION_02_AC', 'MOTION_03_DC', 'MOTION_04_SV', 'MOTION_05_DV', 'MOTION_06_TP', 'MOTION_07_DP', 'MOTION_08_CP', 'MOTION_09_LP', 'MOTION_0A_RP', 'MOTION_0B_SP', 'MOTION_0C_SM', 'MOTION_0D_AO', 'MOTION_0E_LX', 'MOTION_0F_RX', 'MOTION_10_MR0', 'MOTION_11_MR1', 'MOTION_12_MR2', 'MOTION_13_MR3', 'MOTION_14_HV', 'MOTION_15_IV', 'MOTION_16_TM', 'MOTION_17_SP1', 'MOTION_18_SP2', 'MOTION_19_TX', 'MOTION_1A_HLN', 'MOTION_1B_HLV', 'MOTION_1C_GPIO', 'MOTION_1F_NOP', 'MOTION_20_MRM', 'MOTION_21_P1M', 'MOTION_22_P2M', 'MOTION_23_H1M', 'MOTION_24_H2M', 'MOTION_25_FLM', 'MOTION_26_S0M', 'MOTION_27_S1M', 'MOTION_28_S2M', 'MOTION_29_S3M', 'MOTION_2A_IPM', 'MOTION_30_LP', 'MOTION_31_RP', 'MOTION_32_CV', 'MOTION_33_CA', 'MOTION_34_MR0', 'MOTION_35_MR1', 'MOTION_36_MR2', 'MOTION_37_MR3', 'MOTION_38_CT', 'MOTION_39_TX', 'MOTION_3A_CHLN', 'MOTION_3B_HLV', 'MOTION_3D_WR1', 'MOTION_3E_WR2', 'MOTION_3F_WR3', 'MOTION_40_MRM', 'MOTION_41_P1M', 'MOTION_42_P2M', 'MOTION_43_AC', 'MOTION_44_SV', 'MOTION_45_DV', 'MOTION_46_TP', 'MOTION_47_SP1', 'MOTION_48_UI', 'MOTION_50_DRVRL', 'MOTION_51_DRVNR', 'MOTION_52_DRVVP', 'MOTION_53_DRVVM', 'MOTION_54_DRVAB', 'MOTION_56_DRVSBRK', 'MOTION_57_DRVFBRK', 'MOTION_58_DIRCP', 'MOTION_59_DIRCM', 'MOTION_5A_HMSRC', 'MOTION_60_LHK1', 'MOTION_61_LHK2', 'MOTION_62_LHK3', 'MOTION_63_LHK4', 'MOTION_64_CHKCW', 'MOTION_65_CHKCCW', 'MOTION_66_BHK2', 'MOTION_67_BHK3', 'MOTION_68_BHK4', 'MOTION_69_HLCW', 'MOTION_6A_HLCCW', 'MOTION_6B_HLPCW', 'MOTION_6C_HLPCCW', 'MOTION_6D_DECEN', 'MOTION_6E_DECDIS', 'MOTION_6F_CLRSTEP', 'MOTION_70_VINC', 'MOTION_71_VDEC', 'MOTION_72_DCC', 'MOTION_73_TMSTA', 'MOTION_74_TMSTP', 'MOTION_75_SPSTA', 'MOTION_76_SPSTP', 'MOTION_77_DHOLD', 'MOTION_78_DFREE', 'MOTION_79_R2CLR', 'MOTION_7A_RR3P0', 'MOTION_7B_RR3P1', 'MOTION_7C_MFPC', 'MOTION_81_SYNC0EN', 'MOTION_82_SYNC1EN', 'MOTION_83_SYNC01EN', 'MOTION_84_SYNC2EN', 'MOTION_85_SYNC02EN', 'MOTION_86_SYNC12EN', 'MOTION_87_SYNC012EN', 'MOTION_88_SYNC3EN', 'MOTION_89_SYNC03EN', 'MOTION_8A_SYNC13EN', 'MOTION_8B_SYNC013EN', 'MOTION_8C_SYNC23EN', 'MOTION_8D_SYNC023EN', 'MOTION_8E_SYNC123EN', 'MOTION_8F_SYNC0123EN', 'MOTION_91_SYNC0DIS', 'MOTION_92_SYNC1DIS', 'MOTION_93_SYNC01DIS', 'MOTION_94_SYNC2DIS', 'MOTION_95_SYNC02DIS', 'MOTION_96_SYNC12DIS', 'MOTION_97_SYNC012DIS', 'MOTION_98_SYNC3DIS', 'MOTION_99_SYNC03DIS', 'MOTION_9A_SYNC13DIS', 'MOTION_9B_SYNC013DIS', 'MOTION_9C_SYNC23DIS', 'MOTION_9D_SYNC023DIS', 'MOTION_9E_SYNC123DIS', 'MOTION_9F_SYNC0123DIS', 'MOTION_A1_SYNC0ACT', 'MOTION_A2_SYNC1ACT', 'MOTION_A3_SYNC01ACT', 'MOTION_A4_SYNC2ACT', 'MOTION_A5_SYNC02ACT', 'MOTION_A6_SYNC12ACT', 'MOTION_A7_SYNC012ACT', 'MOTION_A8_SYNC3ACT', 'MOTION_A9_SYNC03ACT', 'MOTION_AA_SYNC13ACT', 'MOTION_AB_SYNC013ACT', 'MOTION_AC_SYNC23ACT', 'MOTION_AD_SYNC023ACT', 'MOTION_AE_SYNC123ACT', 'MOTION_AF_SYNC0123ACT', 'MOTION_C0_SP0L', 'MOTION_C1_SP0E', 'MOTION_C2_SP1L', 'MOTION_C3_SP1E', 'MOTION_C4_SP2L', 'MOTION_C5_SP2E', 'MOTION_C6_INPL', 'MOTION_C7_INPE', 'MOTION_C8_ALML', 'MOTION_C9_ALME', 'MOTION_CA_HLML', 'MOTION_CB_HLME', 'MOTION_CC_HLMM', 'MOTION_CD_SLME', 'MOTION_CE_SLMO', 'MOTION_CF_SLMM', 'MOTION_D0_MANLD', 'MOTION_D1_DSNDE', 'MOTION_D2_SACC', 'MOTION_D3_DPMD0', 'MOTION_D4_DPMD1', 'MOTION_D5_DPL', 'MOTION_D6_DIRL', 'MOTION_D7_DPINV', 'MOTION_D8_PIMD0', 'MOTION_D9_PIMD1', 'MOTION_DA_PIL', 'MOTION_DB_PIINV', 'MOTION_DC_LMINV', 'MOTION_DD_AVTRI', 'MOTION_DE_TMMD', 'MOTION_E0_WR0', 'MOTION_E1_WR1', 'MOTION_E2_WR2', 'MOTION_E3_WR3', 'MOTION_E4_WR4', 'MOTION_E5_WR5', 'MOTION_E6_WR6', 'MOTION_E7_WR7', 'MOTION_E8_RR0', 'MOTION_E9_RR1', 'MOTION_EA_RR2', 'MOTION_EB_RR3', 'MOTION_EC_RR4', 'MOTION_ED_RR5', 'MOTION_EE_RR6', 'MOTION_EF_RR7', 'MOTION_FC_I2CCHK', 'MOTION_FD_I2CRST', 'MOTION_FE_HDRST', 'MOTION_GET_PARAM', 'MOTION_GET_PROC_STATE', 'MOTION_LOAD_PARAM', 'MOTION_READ_REG', 'MOTION_RESET_FACTORY', 'MOTION_SAVE_PARAM', 'MOTION_SET_PARAM', 'MOTION_START_FIND_END', 'MOTION_START_FIND_HOME', 'MOTION_START_FIND_Z', 'MOTION_START_P_MOVE', 'MOTION_START_SCAN_MOVE', 'MOTION_START_V_MOVE', 'MOTION_STOP_PROC', 'MOTION_WRITE_REG', 'MRDRPortNotAvaliable', 'MRDR_00_GCONF', 'MRDR_01_GSTAT', 'MRDR_02_IFCNT', 'MRDR_03_SLAVECONF', 'MRDR_04_INP_OUT', 'MRDR_05_X_COMPARE', 'MRDR_06_OTP_PROG', 'MRDR_0A_DRV_CONF', 'MRDR_0B_GLOBAL_SCALER', 'MRDR_10_IHOLD_IRUN', 'MRDR_11_TPOWERDOWN', 'MRDR_12_TSTEP', 'MRDR_13_TPWMTHRS', 'MRDR_14_TCOOLTHRS', 'MRDR_15_THIGH', 'MRDR_20_RAMPMODE', 'MRDR_21_XACTUAL', 'MRDR_22_VACTUAL', 'MRDR_23_VSTART', 'MRDR_24_A1', 'MRDR_25_V1', 'MRDR_26_AMAX', 'MRDR_27_VMAX', 'MRDR_28_DMAX', 'MRDR_29_TVMAX', 'MRDR_2A_D1', 'MRDR_2B_VSTOP', 'MRDR_2C_TZEROWAIT', 'MRDR_2D_XTARGET', 'MRDR_2F_A2', 'MRDR_30_D2', 'MRDR_31_AACTUAL', 'MRDR_33_VDCMIN', 'MRDR_34_SWMODE', 'MRDR_35_RAMPSTAT', 'MRDR_36_XLATCH', 'MRDR_38_ENCMODE', 'MRDR_39_XENC', 'MRDR_3A_ENC_CONST', 'MRDR_3B_ENC_STATUS', 'MRDR_3C_ENC_LATCH', 'MRDR_3D_ENC_DEVIATION', 'MRDR_50_ADC_VSUPPLY_AIN', 'MRDR_51_ADC_TEMP', 'MRDR_52_OTW_OV_VTH', 'MRDR_60_MSLUT0', 'MRDR_61_MSLUT1', 'MRDR_62_MSLUT2', 'MRDR_63_MSLUT3', 'MRDR_64_MSLUT4', 'MRDR_65_MSLUT5', 'MRDR_66_MSLUT6', 'MRDR_67_MSLUT7', 'MRDR_68_MSLUTSEL', 'MRDR_69_MSLUTSTART', 'MRDR_6A_MSCNT', 'MRDR_6B_MSCURACT', 'MRDR_6C_CHOPCONF', 'MRDR_6D_COOLCONF', 'MRDR_6E_DCCTRL', 'MRDR_6F_DRVSTATUS', 'MRDR_70_PWMCONF', 'MRDR_71_PWMSCALE', 'MRDR_72_PWM_AUTO', 'MRDR_74_SG4_THRS', 'MRDR_75_SG4_RESULT', 'MRDR_76_SG4_IND', 'Measurement', 'MerlinAxis', 'MerlinDrive', 'MotionAccelerationModeError', 'MotionAxis', 'MotionAxisError', 'MotionBreakPointModeError', 'MotionCaptureModeError', 'MotionCaptureTypeError', 'MotionCircularInterpolation', 'MotionDirectionError', 'MotionEnableError', 'MotionHelicalInterpolation', 'MotionInifile', 'MotionLinearInterpolation', 'MotionOperationModeError', 'MotionPolarityError', 'MotionPortNotAvaliable', 'MotionSearchDirectionError', 'MotionSearchTypeError', 'MotionStepperOutputError', 'MotionStopModeError', 'NOTICE', 'NUM_BCST_RETRIES', 'NUM_RETRIES', 'NetworkClient', 'NetworkConnectionError', 'NetworkConnectionLostError', 'NetworkDevice', 'NetworkModule', 'OPEN_CAN', 'ORVWarning', 'PACKET_TIMEOUT', 'PRODUCT_LIST', 'PWMChannelNotAvaliableError', 'PWMModule', 'PinsNotExistError', 'PinsValueNotDefineError', 'PloverAin', 'PloverAio', 'PloverCan', 'PloverDio', 'PloverRtd', 'PloverSink', 'PloverTc', 'QUEUE_SIZE_MAX', 'QUEUE_TIMEOUT', 'RETRY_TIMEOUT', 'ReceivePacketTimeoutError', 'RelayCounterIndexError', 'RelayModule', 'ReplyFormatError', 'SCENARIO', 'SEE_MORE', 'SPIDataLengthExceedMaxError', 'SPIDataSizeNotVaildError', 'SPIFirstBitNotVaildError', 'SPIModeNotVaildError', 'SPIModule', 'SPIPortNotAvaliableError', 'SPIPrescalerNotVaildError', 'SPYDER', 'START_AI_STREAMING', 'START_AI_STREAMING_VARIABLE', 'START_AO_STREAMING', 'START_CAN', 'START_MOTION_MONITORING', 'START_UART_READING', 'STREAMING_CMD_LIST', 'StreamQueue', 'SystemAnalogModule', 'SystemModule', 'TCPClient', 'TCP_CMD_PORT', 'TCP_DATA_LENGTH_MAX', 'TCP_DATA_PORT', 'TCP_PKT_LENGTH_MAX', 'TMC5240Module', 'TMC5240RegisterValue', 'ThermalChipSelectNotAvaliableError', 'ThermalModeNotVaildError', 'ThermalModule', 'ThermalPortNotAvaliableError', 'ThermalResistanceModule', 'ThermalTypeNotVaildError', 'ThermocoupleModule', 'Trellis', 'TrellisLite', 'TrellisPortNotAvaliableError', 'UARTBaudRateNotSupportError', 'UARTDataBitNotSupportError', 'UARTExceedMaxLengthError', 'UARTModule', 'UARTParityNotSupportError', 'UARTPortNotAvaliableError', 'UARTQueueOverflowWarning', 'UARTStopBitNotSupportError', 'UDPClient', 'UDP_PKT_LENGTH_MAX', 'UDP_RECV_PORT', 'UDP_SEND_PORT', 'USBClient', 'USBConnectionError', 'USBDevice', 'USB_61E_PLUS_PID', 'USB_61E_PLUS_VID', 'USB_61E_RECEIVE_BYTE', 'USB_61E_RECEIVE_TIMEOUT', 'USB_61E_RECEIVE_TOTAL_BYTES', 'USB_EP_IN', 'USB_EP_OUT', 'USB_PID', 'USB_PKT_SIZE', 'USB_VID', 'WifiDevice', 'WifiModule', 'adjustDataList', 'changeToTrellisPort', 'checkEachItemInRange', 'checkFirmwareError', 'checkFuncPinMap', 'checkInputType', 'checkInputTypeConsistent', 'checkPinMap', 'clearBit', 'coerce', 'convert2U8ToI16', 'convert2U8ToU16', 'convert4U8ToF32', 'convert4U8ToI32', 'convert4U8ToU32', 'convert8U8ToF64', 'convert8U8ToI64', 'convert8U8ToU64', 'convertF32To4U8', 'convertF64To8U8', 'convertI16To2U8', 'convertI32To4U8', 'convertI64To8U8', 'convertIPAddrTo4U8', 'convertIndexAndBinaryListsToInt', 'convertIndexListToInt', 'convertIntToBinaryList', 'convertIntToIndexList', 'convertMACAddrTo6U8', 'convertStrToU8List', 'convertU16To2U8', 'convertU32To4U8', 'convertU64To8U8', 'convertU8ListToStr', 'errAHRSMode', 'errAHRSPort', 'errAIChannel', 'errAIChip', 'errAIMode', 'errAIPort', 'errAIRate', 'errAOChannel', 'errAOForm', 'errAOMode', 'errAOPort', 'errAORate', 'errAOSpan', 'errAPINotSupport', 'errCANDataLength', 'errCANPort', 'errCANSpeed', 'errCANTX', 'errCANTXPriority', 'errCounterchannel', 'errDIPort', 'errDOPort', 'errDPOTChannel', 'errDPOTPort', 'errDeviceClosed', 'errFirmwareAI', 'errFirmwareAO', 'errFirmwareBootloader', 'errFirmwareCAN', 'errFirmwareCore', 'errFirmwareDIO', 'errFirmwareDrive', 'errFirmwareEEPROM', 'errFirmwareEnable', 'errFirmwareEncoder', 'errFirmwareHALIndex', 'errFirmwareI2C', 'errFirmwareMotion', 'errFirmwareOLED', 'errFirmwareORVIndex', 'errFirmwareOther', 'errFirmwarePWM', 'errFirmwareParser', 'errFirmwarePinIndex', 'errFirmwarePulse', 'errFirmwareRTC', 'errFirmwareRelay', 'errFirmwareSPI', 'errFirmwareTCP', 'errFirmwareTIM', 'errFirmwareThermal', 'errFirmwareUART', 'errFirmwareUDP', 'errFirmwareUSB', 'errI2CAddressSize', 'errI2CClock', 'errI2CPort', 'errIniFileName', 'errIniFileNotFound', 'errInputDataNotInRange', 'errInputTypeNotConsistent', 'errInputTypeNotCorrect', 'errLinkNotOpen', 'errMotionAccelerationMode', 'errMotionAxis', 'errMotionBreakPoint', 'errMotionCaptureMode', 'errMotionCaptureType', 'errMotionDirection', 'errMotionEnable', 'errMotionOperationMode', 'errMotionPolarity', 'errMotionPort', 'errMotionSearchDirection', 'errMotionSearchType', 'errMotionStepperOutput', 'errMotionStopMode', 'errNetConnection', 'errNetConnectionLost', 'errPWMchannel', 'errPacketTimeout', 'errPinsNotExist', 'errPinsValueNotDefine', 'errRelayIndex', 'errReplyFormat', 'errSPIDataLengthExceedMax', 'errSPIDataSize', 'errSPIFirstBit', 'errSPIMode', 'errSPIPort', 'errSPIPrescaler', 'errThermalChipSelect', 'errThermalMode', 'errThermalPort', 'errThermalType', 'errTrellisSlot', 'errUARTBaudRate', 'errUARTDataBit', 'errUARTExceedMaxLength', 'errUARTParity', 'errUARTPort', 'errUARTStopBit', 'errUSBConnection', 'fillBit', 'printGenericError', 'readBit', 'warnAHRSOverflow', 'warnAIOverflow', 'warnCANOverflow', 'warnLibNotFound', 'warnUARTOverflow', 'writeBit']
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
    def _run_input(self) -> None:
        ...
    def _run_posted(self) -> None:
        ...
    def _run_timers(self) -> None:
        ...
class CANFrame:
    """
    One CAN frame: identifier (11 or 29 bits), extended and remote flags, eight data bytes, and its twelve-byte wire form.
    """
    __hash__: typing.ClassVar[None] = None
    @staticmethod
    def fromU8List(u8_list: collections.abc.Sequence[typing.SupportsInt | typing.SupportsIndex]) -> CANFrame:
        """
        The frame of a wire form: four identifier bytes, then the data.
        """
    @staticmethod
    def from_message(msg: typing.Any) -> CANFrame:
        """
        A frame from a python-can Message: its identifier, flags and data (padded to eight bytes).
        """
    @staticmethod
    def regularizeData(data: collections.abc.Sequence[typing.SupportsInt | typing.SupportsIndex]) -> list[int]:
        """
        A copy of data padded with zeros and cut to eight entries.
        """
    def __eq__(self, arg0: CANFrame) -> bool:
        ...
    def __init__(self, id_: typing.SupportsInt | typing.SupportsIndex, extended_id: bool = False, remote: bool = False, data: collections.abc.Sequence[typing.SupportsInt | typing.SupportsIndex] = [0, 0, 0, 0, 0, 0, 0, 0]) -> None:
        """
        A frame; data is copied, padded with zeros and cut to eight bytes.
        """
    def __repr__(self) -> str:
        ...
    def setID(self) -> None:
        """
        Recomputes id_in_list and frame_in_list from id, extended_id, remote and data.
        """
    def to_message(self) -> typing.Any:
        """
        The frame as a python-can Message (ImportError without python-can).
        """
    @property
    def data(self) -> list[int]:
        """
        eight data bytes
        """
    @data.setter
    def data(self, arg0: collections.abc.Sequence[typing.SupportsInt | typing.SupportsIndex]) -> None:
        ...
    @property
    def extended_id(self) -> bool:
        """
        True for a 29-bit identifier
        """
    @extended_id.setter
    def extended_id(self, arg0: bool) -> None:
        ...
    @property
    def frame_in_list(self) -> list[int]:
        """
        the wire form: id_in_list, then data
        """
    @frame_in_list.setter
    def frame_in_list(self, arg0: collections.abc.Sequence[typing.SupportsInt | typing.SupportsIndex]) -> None:
        ...
    @property
    def id(self) -> int:
        """
        the identifier
        """
    @id.setter
    def id(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def id_in_list(self) -> list[int]:
        """
        the identifier word as four bytes, high byte first
        """
    @id_in_list.setter
    def id_in_list(self, arg0: collections.abc.Sequence[typing.SupportsInt | typing.SupportsIndex]) -> None:
        ...
    @property
    def remote(self) -> bool:
        """
        True for a remote frame
        """
    @remote.setter
    def remote(self, arg0: bool) -> None:
        ...
class DataLogger:
    """
    Writes rows of values to a CSV file from a writer thread of its own (save_data_thread), in the default CSV dialect (CR LF line ends, quotes only where needed, UTF-8).
    
    DataLogger(): the writer starts, held until a file is open.
    """
    queue_timeout: typing.ClassVar[float] = 999999.0
    def Logger_openFile(self, filename: typing.Any, clear_old: bool = True, verbose: bool = True) -> int:
        """
        Logger_openFile(self, filename: str, clear_old: bool = True, verbose: bool = True) -> int
        
        Opens the file (clear_old: truncated, else appended to) and lets the writer run; verbose prints "Opened file name: (<filename>)". Returns 0.
        
        Raises:
            OSError: the file cannot be opened.
        """
    def Logger_write2DList(self, value_mat: typing.Any) -> int:
        """
        Logger_write2DList(self, value_mat: collections.abc.Iterable[collections.abc.Iterable[typing.Any]]) -> int
        
        Queues rows, written together; an empty list writes nothing. Returns 0.
        """
    def Logger_writeHeader(self, header: typing.Any) -> int:
        """
        Logger_writeHeader(self, header: collections.abc.Sequence[str]) -> int
        
        Queues one row of column names. Returns 0.
        """
    def Logger_writeList(self, value_list: typing.Any) -> int:
        """
        Logger_writeList(self, value_list: collections.abc.Iterable[typing.Any]) -> int
        
        Queues one row; each value is written as the CSV writer formats it. Returns 0.
        """
    def Logger_writeValue(self, value: typing.Any) -> int:
        """
        Logger_writeValue(self, value: typing.Any) -> int
        
        Queues a row of one value. Returns 0.
        """
    def _Logger_close(self, verbose: bool = True) -> int:
        """
        _Logger_close(self, verbose: bool = True) -> int
        
        Closes the file and ends the writer; rows still queued are lost. Returns 0.
        """
    def _Logger_flush(self, timeout: typing.SupportsFloat | typing.SupportsIndex = 5.0) -> bool:
        """
        _Logger_flush(self, timeout: float = 5.0) -> bool
        
        Waits until the writer has written every row queued so far, at most timeout seconds; True when nothing is left queued.
        """
    def __init__(self) -> None:
        ...
    @property
    def _save_data_queue_size(self) -> int:
        """
        Entries waiting in the queue.
        """
    @property
    def _save_data_thread_id(self) -> int:
        """
        The native id of the writer thread; 0 once it has ended.
        """
    @property
    def filename(self) -> str:
        """
        The file name last opened.
        """
    @property
    def killed(self) -> bool:
        """
        True once the logger (or the device it belongs to) is closed.
        """
class MotionAxis:
    """
    The host's mirror of one motion axis and its ini-file settings.
    """
    def __init__(self) -> None:
        ...
    @property
    def acceleration(self) -> int:
        ...
    @acceleration.setter
    def acceleration(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def acceleration_mode(self) -> int:
        ...
    @acceleration_mode.setter
    def acceleration_mode(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def breakpoint_mode(self) -> int:
        ...
    @breakpoint_mode.setter
    def breakpoint_mode(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def breakpoint_polarity(self) -> int:
        ...
    @breakpoint_polarity.setter
    def breakpoint_polarity(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def breakpoint_pulse_number(self) -> int:
        ...
    @breakpoint_pulse_number.setter
    def breakpoint_pulse_number(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def breakpoint_pulse_period(self) -> int:
        ...
    @breakpoint_pulse_period.setter
    def breakpoint_pulse_period(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def breakpoint_pulse_width(self) -> int:
        ...
    @breakpoint_pulse_width.setter
    def breakpoint_pulse_width(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def breakpoint_start_position(self) -> int:
        ...
    @breakpoint_start_position.setter
    def breakpoint_start_position(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def capture_mode(self) -> int:
        ...
    @capture_mode.setter
    def capture_mode(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def capture_type(self) -> int:
        ...
    @capture_type.setter
    def capture_type(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def deceleration(self) -> int:
        ...
    @deceleration.setter
    def deceleration(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def destinate_position(self) -> int:
        ...
    @destinate_position.setter
    def destinate_position(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def encoder_position(self) -> int:
        ...
    @encoder_position.setter
    def encoder_position(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def jerk(self) -> int:
        ...
    @jerk.setter
    def jerk(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def motion_dict(self) -> dict:
        """
        A copy of the labelled settings, in the ini file's order.
        """
    @property
    def operation_mode(self) -> int:
        ...
    @operation_mode.setter
    def operation_mode(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def search_accerleration(self) -> int:
        ...
    @search_accerleration.setter
    def search_accerleration(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def search_type(self) -> int:
        ...
    @search_type.setter
    def search_type(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def search_velocity(self) -> int:
        ...
    @search_velocity.setter
    def search_velocity(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def stop(self) -> int:
        ...
    @stop.setter
    def stop(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def stop_decl(self) -> int:
        ...
    @stop_decl.setter
    def stop_decl(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def target_position(self) -> int:
        ...
    @target_position.setter
    def target_position(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def velocity(self) -> int:
        ...
    @velocity.setter
    def velocity(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def velocity_move_direction(self) -> int:
        ...
    @velocity_move_direction.setter
    def velocity_move_direction(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
class MotionLinearInterpolation:
    """
    The last linear interpolation request.
    """
    @property
    def acceleration(self) -> int:
        ...
    @acceleration.setter
    def acceleration(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def fourth_axis(self) -> int:
        ...
    @fourth_axis.setter
    def fourth_axis(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def fourth_dest(self) -> int:
        ...
    @fourth_dest.setter
    def fourth_dest(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def main_axis(self) -> int:
        ...
    @main_axis.setter
    def main_axis(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def main_dest(self) -> int:
        ...
    @main_dest.setter
    def main_dest(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def mode(self) -> int:
        ...
    @mode.setter
    def mode(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def second_axis(self) -> int:
        ...
    @second_axis.setter
    def second_axis(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def second_dest(self) -> int:
        ...
    @second_dest.setter
    def second_dest(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def speed(self) -> int:
        ...
    @speed.setter
    def speed(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def third_axis(self) -> int:
        ...
    @third_axis.setter
    def third_axis(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def third_dest(self) -> int:
        ...
    @third_dest.setter
    def third_dest(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
class MotionCircularInterpolation:
    """
    The last circular interpolation request.
    """
    @property
    def acceleration(self) -> int:
        ...
    @acceleration.setter
    def acceleration(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def center_point_x(self) -> int:
        ...
    @center_point_x.setter
    def center_point_x(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def center_point_y(self) -> int:
        ...
    @center_point_y.setter
    def center_point_y(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def deceleration(self) -> int:
        ...
    @deceleration.setter
    def deceleration(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def direction(self) -> int:
        ...
    @direction.setter
    def direction(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def finish_point_x(self) -> int:
        ...
    @finish_point_x.setter
    def finish_point_x(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def finish_point_y(self) -> int:
        ...
    @finish_point_y.setter
    def finish_point_y(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def main_axis(self) -> int:
        ...
    @main_axis.setter
    def main_axis(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def second_axis(self) -> int:
        ...
    @second_axis.setter
    def second_axis(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def speed(self) -> int:
        ...
    @speed.setter
    def speed(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
class MotionHelicalInterpolation:
    """
    The last helical interpolation request.
    """
    @property
    def calculation_result(self) -> int:
        ...
    @calculation_result.setter
    def calculation_result(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def center_point_axis1(self) -> int:
        ...
    @center_point_axis1.setter
    def center_point_axis1(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def center_point_axis2(self) -> int:
        ...
    @center_point_axis2.setter
    def center_point_axis2(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def circular_direction(self) -> int:
        ...
    @circular_direction.setter
    def circular_direction(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def circular_speed(self) -> int:
        ...
    @circular_speed.setter
    def circular_speed(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def enable_axis4(self) -> int:
        ...
    @enable_axis4.setter
    def enable_axis4(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def finish_point_axis1(self) -> int:
        ...
    @finish_point_axis1.setter
    def finish_point_axis1(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def finish_point_axis2(self) -> int:
        ...
    @finish_point_axis2.setter
    def finish_point_axis2(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def pitch_axis3(self) -> int:
        ...
    @pitch_axis3.setter
    def pitch_axis3(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def pitch_axis4(self) -> int:
        ...
    @pitch_axis4.setter
    def pitch_axis4(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
    @property
    def rotation_number(self) -> int:
        ...
    @rotation_number.setter
    def rotation_number(self, arg0: typing.SupportsInt | typing.SupportsIndex) -> None:
        ...
class MotionInifile:
    """
    Settings and the words the motion ini file shows for them.
    """
    def _Motion_INI_convertIntToString(self, key: str, value: typing.Any) -> typing.Any:
        ...
    def _Motion_INI_convertStringToInt(self, key: str, label: str) -> typing.Any:
        ...
    def __init__(self) -> None:
        ...
    @property
    def ini_in_dict(self) -> dict[str, dict[str, int]]:
        ...
    @property
    def ini_out_dict(self) -> dict[str, dict[int, str]]:
        ...
class MCX514Driver:
    """
    The MCX514 command layer: one register write, read or chip command per MOTION packet.
    """
    def Motion_setLogicalPosi(self, port: int, axis: int, counter: int, timeout: float = 3) -> int:
        """
        Writes MOTION_09_LP of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            counter (int): -2**31..2**31-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_setLogicalPosi_async(self, port: int, axis: int, counter: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_setLogicalPosi, without timeout: Writes MOTION_09_LP of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            counter (int): -2**31..2**31-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_NOP(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_1F_NOP to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_NOP_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_NOP, without timeout: Sends the command MOTION_1F_NOP to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_absolutePositionDriving(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_54_DRVAB to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_absolutePositionDriving_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_absolutePositionDriving, without timeout: Sends the command MOTION_54_DRVAB to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_autoHomeSearch(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_5A_HMSRC to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_autoHomeSearch_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_autoHomeSearch, without timeout: Sends the command MOTION_5A_HMSRC to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_ccwCircularInterpolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_65_CHKCCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_ccwCircularInterpolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_ccwCircularInterpolation, without timeout: Sends the command MOTION_65_CHKCCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_ccwHelicalCalculation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_6C_HLPCCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_ccwHelicalCalculation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_ccwHelicalCalculation, without timeout: Sends the command MOTION_6C_HLPCCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_ccwHelicalInterpolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_6A_HLCCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_ccwHelicalInterpolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_ccwHelicalInterpolation, without timeout: Sends the command MOTION_6A_HLCCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_checkI2C(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_FC_I2CCHK to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_checkI2C_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_checkI2C, without timeout: Sends the command MOTION_FC_I2CCHK to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_clearDeviationCounterSpeed(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_72_DCC to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_clearDeviationCounterSpeed_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_clearDeviationCounterSpeed, without timeout: Sends the command MOTION_72_DCC to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_clearErrorStatus(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_79_R2CLR to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_clearErrorStatus_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_clearErrorStatus, without timeout: Sends the command MOTION_79_R2CLR to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_clearMaxFinishPoint(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_7C_MFPC to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_clearMaxFinishPoint_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_clearMaxFinishPoint, without timeout: Sends the command MOTION_7C_MFPC to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_counterRelativePositionDriving(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_51_DRVNR to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_counterRelativePositionDriving_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_counterRelativePositionDriving, without timeout: Sends the command MOTION_51_DRVNR to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_cwCircularInterpolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_64_CHKCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_cwCircularInterpolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_cwCircularInterpolation, without timeout: Sends the command MOTION_64_CHKCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_cwHelicalCalculation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_6B_HLPCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_cwHelicalCalculation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_cwHelicalCalculation, without timeout: Sends the command MOTION_6B_HLPCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_cwHelicalInterpolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_69_HLCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_cwHelicalInterpolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_cwHelicalInterpolation, without timeout: Sends the command MOTION_69_HLCW to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_decelerateStop(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_56_DRVSBRK to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_decelerateStop_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_decelerateStop, without timeout: Sends the command MOTION_56_DRVSBRK to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_decreaseSpeed(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_71_VDEC to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_decreaseSpeed_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_decreaseSpeed, without timeout: Sends the command MOTION_71_VDEC to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_dirSignalNegativeSetting(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_59_DIRCM to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_dirSignalNegativeSetting_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_dirSignalNegativeSetting, without timeout: Sends the command MOTION_59_DIRCM to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_dirSignalPositiveSetting(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_58_DIRCP to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_dirSignalPositiveSetting_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_dirSignalPositiveSetting, without timeout: Sends the command MOTION_58_DIRCP to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC0(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_91_SYNC0DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC0SYNC1(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_93_SYNC01DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC0SYNC1SYNC2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_97_SYNC012DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC0SYNC1SYNC2SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_9F_SYNC0123DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC0SYNC1SYNC2SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC0SYNC1SYNC2SYNC3, without timeout: Sends the command MOTION_9F_SYNC0123DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC0SYNC1SYNC2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC0SYNC1SYNC2, without timeout: Sends the command MOTION_97_SYNC012DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC0SYNC1SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_9B_SYNC013DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC0SYNC1SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC0SYNC1SYNC3, without timeout: Sends the command MOTION_9B_SYNC013DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC0SYNC1_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC0SYNC1, without timeout: Sends the command MOTION_93_SYNC01DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC0SYNC2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_95_SYNC02DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC0SYNC2SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_9D_SYNC023DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC0SYNC2SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC0SYNC2SYNC3, without timeout: Sends the command MOTION_9D_SYNC023DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC0SYNC2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC0SYNC2, without timeout: Sends the command MOTION_95_SYNC02DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC0SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_99_SYNC03DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC0SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC0SYNC3, without timeout: Sends the command MOTION_99_SYNC03DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC0_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC0, without timeout: Sends the command MOTION_91_SYNC0DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC1(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_92_SYNC1DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC1SYNC2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_96_SYNC12DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC1SYNC2SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_9E_SYNC123DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC1SYNC2SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC1SYNC2SYNC3, without timeout: Sends the command MOTION_9E_SYNC123DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC1SYNC2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC1SYNC2, without timeout: Sends the command MOTION_96_SYNC12DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC1SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_9A_SYNC13DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC1SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC1SYNC3, without timeout: Sends the command MOTION_9A_SYNC13DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC1_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC1, without timeout: Sends the command MOTION_92_SYNC1DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_94_SYNC2DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC2SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_9C_SYNC23DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC2SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC2SYNC3, without timeout: Sends the command MOTION_9C_SYNC23DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC2, without timeout: Sends the command MOTION_94_SYNC2DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableActionSYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_98_SYNC3DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableActionSYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableActionSYNC3, without timeout: Sends the command MOTION_98_SYNC3DIS to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableDeceleration(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_6E_DECDIS to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableDeceleration_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableDeceleration, without timeout: Sends the command MOTION_6E_DECDIS to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_disableTriangleFormPrevention(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_DD_AVTRI of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_disableTriangleFormPrevention_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_disableTriangleFormPrevention, without timeout: Writes MOTION_DD_AVTRI of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_displayRR3PageOne(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_7B_RR3P1 to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_displayRR3PageOne_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_displayRR3PageOne, without timeout: Sends the command MOTION_7B_RR3P1 to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_displayRR3PageZero(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_7A_RR3P0 to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_displayRR3PageZero_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_displayRR3PageZero, without timeout: Sends the command MOTION_7A_RR3P0 to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC0(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_81_SYNC0EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC0SYNC1(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_83_SYNC01EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC0SYNC1SYNC2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_87_SYNC012EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC0SYNC1SYNC2SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_8F_SYNC0123EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC0SYNC1SYNC2SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC0SYNC1SYNC2SYNC3, without timeout: Sends the command MOTION_8F_SYNC0123EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC0SYNC1SYNC2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC0SYNC1SYNC2, without timeout: Sends the command MOTION_87_SYNC012EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC0SYNC1SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_8B_SYNC013EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC0SYNC1SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC0SYNC1SYNC3, without timeout: Sends the command MOTION_8B_SYNC013EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC0SYNC1_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC0SYNC1, without timeout: Sends the command MOTION_83_SYNC01EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC0SYNC2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_85_SYNC02EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC0SYNC2SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_8D_SYNC023EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC0SYNC2SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC0SYNC2SYNC3, without timeout: Sends the command MOTION_8D_SYNC023EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC0SYNC2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC0SYNC2, without timeout: Sends the command MOTION_85_SYNC02EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC0SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_89_SYNC03EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC0SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC0SYNC3, without timeout: Sends the command MOTION_89_SYNC03EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC0_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC0, without timeout: Sends the command MOTION_81_SYNC0EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC1(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_82_SYNC1EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC1SYNC2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_86_SYNC12EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC1SYNC2SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_8E_SYNC123EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC1SYNC2SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC1SYNC2SYNC3, without timeout: Sends the command MOTION_8E_SYNC123EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC1SYNC2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC1SYNC2, without timeout: Sends the command MOTION_86_SYNC12EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC1SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_8A_SYNC13EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC1SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC1SYNC3, without timeout: Sends the command MOTION_8A_SYNC13EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC1_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC1, without timeout: Sends the command MOTION_82_SYNC1EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_84_SYNC2EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC2SYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_8C_SYNC23EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC2SYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC2SYNC3, without timeout: Sends the command MOTION_8C_SYNC23EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC2, without timeout: Sends the command MOTION_84_SYNC2EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableActionSYNC3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_88_SYNC3EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableActionSYNC3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableActionSYNC3, without timeout: Sends the command MOTION_88_SYNC3EN to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableAsymmetricAccelerationDeceleration(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_D1_DSNDE of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableAsymmetricAccelerationDeceleration_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableAsymmetricAccelerationDeceleration, without timeout: Writes MOTION_D1_DSNDE of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableDeceleratingStopHardwareLimitOn(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_CC_HLMM of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableDeceleratingStopHardwareLimitOn_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableDeceleratingStopHardwareLimitOn, without timeout: Writes MOTION_CC_HLMM of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableDeceleration(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_6D_DECEN to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableDeceleration_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableDeceleration, without timeout: Sends the command MOTION_6D_DECEN to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableDrivingStop0(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_C1_SP0E of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableDrivingStop0_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableDrivingStop0, without timeout: Writes MOTION_C1_SP0E of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableDrivingStop1(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_C3_SP1E of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableDrivingStop1_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableDrivingStop1, without timeout: Writes MOTION_C3_SP1E of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableDrivingStop2(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_C5_SP2E of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableDrivingStop2_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableDrivingStop2, without timeout: Writes MOTION_C5_SP2E of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableECA_ECBPinInversion(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_DB_PIINV of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableECA_ECBPinInversion_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableECA_ECBPinInversion, without timeout: Writes MOTION_DB_PIINV of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableHardwareLimit(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_CB_HLME of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableHardwareLimit_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableHardwareLimit, without timeout: Writes MOTION_CB_HLME of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableInposition(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_C7_INPE of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableInposition_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableInposition, without timeout: Writes MOTION_C7_INPE of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableInstantStopSoftwareLimitOn(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_CF_SLMM of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableInstantStopSoftwareLimitOn_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableInstantStopSoftwareLimitOn, without timeout: Writes MOTION_CF_SLMM of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableLMTP_LMTMPinInversion(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_DC_LMINV of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableLMTP_LMTMPinInversion_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableLMTP_LMTMPinInversion, without timeout: Writes MOTION_DC_LMINV of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableManualDeceleration(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_D0_MANLD of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableManualDeceleration_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableManualDeceleration, without timeout: Writes MOTION_D0_MANLD of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enablePMPPPinInversion(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_D7_DPINV of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enablePMPPPinInversion_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enablePMPPPinInversion, without timeout: Writes MOTION_D7_DPINV of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableRealPosiCounterSoftwareLimitOn(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_CE_SLMO of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableRealPosiCounterSoftwareLimitOn_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableRealPosiCounterSoftwareLimitOn, without timeout: Writes MOTION_CE_SLMO of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableRepeatTimer(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_DE_TMMD of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableRepeatTimer_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableRepeatTimer, without timeout: Writes MOTION_DE_TMMD of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableScurveDriving(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_D2_SACC of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableScurveDriving_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableScurveDriving, without timeout: Writes MOTION_D2_SACC of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableServoAlarm(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_C9_ALME of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableServoAlarm_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableServoAlarm, without timeout: Writes MOTION_C9_ALME of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_enableSoftwareLimit(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_CD_SLME of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableSoftwareLimit_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableSoftwareLimit, without timeout: Writes MOTION_CD_SLME of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_fourAxisLinearInterpolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_63_LHK4 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_fourAxisLinearInterpolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_fourAxisLinearInterpolation, without timeout: Sends the command MOTION_63_LHK4 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_fourAxisPatternPolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_68_BHK4 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_fourAxisPatternPolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_fourAxisPatternPolation, without timeout: Sends the command MOTION_68_BHK4 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getAcceleration(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_43_AC of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getAcceleration_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getAcceleration, without timeout: Reads MOTION_43_AC of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getCurrentAcceleration(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_33_CA of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getCurrentAcceleration_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getCurrentAcceleration, without timeout: Reads MOTION_33_CA of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getCurrentDriveSpeed(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_32_CV of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getCurrentDriveSpeed_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getCurrentDriveSpeed, without timeout: Reads MOTION_32_CV of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getCurrentTimer(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_38_CT of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getCurrentTimer_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getCurrentTimer, without timeout: Reads MOTION_38_CT of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getDrivePulseNumberPoint(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_46_TP of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getDrivePulseNumberPoint_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getDrivePulseNumberPoint, without timeout: Reads MOTION_46_TP of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getDriveSpeed(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_45_DV of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getDriveSpeed_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getDriveSpeed, without timeout: Reads MOTION_45_DV of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getGeneralPurposeInput(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_48_UI of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getGeneralPurposeInput_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getGeneralPurposeInput, without timeout: Reads MOTION_48_UI of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getHelicalCalculation(self, port: int, timeout: float = 3) -> int:
        """
        Reads MOTION_3B_HLV of the chip (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getHelicalCalculation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getHelicalCalculation, without timeout: Reads MOTION_3B_HLV of the chip (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getHelicalRotaionNumber(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_3A_CHLN of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getHelicalRotaionNumber_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getHelicalRotaionNumber, without timeout: Reads MOTION_3A_CHLN of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getInitialSpeed(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_44_SV of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getInitialSpeed_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getInitialSpeed, without timeout: Reads MOTION_44_SV of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getMaxInterpolationPoint(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_39_TX of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getMaxInterpolationPoint_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getMaxInterpolationPoint, without timeout: Reads MOTION_39_TX of an axis (one MOTION packet): a 32-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getMultiPurposeRegister0(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_34_MR0 of an axis (one MOTION packet): a 32-bit signed value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getMultiPurposeRegister0_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getMultiPurposeRegister0, without timeout: Reads MOTION_34_MR0 of an axis (one MOTION packet): a 32-bit signed value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getMultiPurposeRegister1(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_35_MR1 of an axis (one MOTION packet): a 32-bit signed value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getMultiPurposeRegister1_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getMultiPurposeRegister1, without timeout: Reads MOTION_35_MR1 of an axis (one MOTION packet): a 32-bit signed value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getMultiPurposeRegister2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_36_MR2 of an axis (one MOTION packet): a 32-bit signed value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getMultiPurposeRegister2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getMultiPurposeRegister2, without timeout: Reads MOTION_36_MR2 of an axis (one MOTION packet): a 32-bit signed value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getMultiPurposeRegister3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_37_MR3 of an axis (one MOTION packet): a 32-bit signed value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getMultiPurposeRegister3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getMultiPurposeRegister3, without timeout: Reads MOTION_37_MR3 of an axis (one MOTION packet): a 32-bit signed value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getMultiPurposeRegisterMode(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_40_MRM of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getMultiPurposeRegisterMode_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getMultiPurposeRegisterMode, without timeout: Reads MOTION_40_MRM of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getPIOSignal1(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_41_P1M of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getPIOSignal1_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getPIOSignal1, without timeout: Reads MOTION_41_P1M of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getPIOSignal2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_42_P2M of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getPIOSignal2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getPIOSignal2, without timeout: Reads MOTION_42_P2M of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getWR1(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_3D_WR1 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getWR1_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getWR1, without timeout: Reads MOTION_3D_WR1 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getWR2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_3E_WR2 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getWR2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getWR2, without timeout: Reads MOTION_3E_WR2 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_getWR3(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_3F_WR3 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getWR3_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getWR3, without timeout: Reads MOTION_3F_WR3 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_holdDrivingStart(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_77_DHOLD to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_holdDrivingStart_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_holdDrivingStart, without timeout: Sends the command MOTION_77_DHOLD to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_increaseSpeed(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_70_VINC to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_increaseSpeed_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_increaseSpeed, without timeout: Sends the command MOTION_70_VINC to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_instantStop(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_57_DRVFBRK to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_instantStop_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_instantStop, without timeout: Sends the command MOTION_57_DRVFBRK to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_interruptSingleStepInterpolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_6F_CLRSTEP to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_interruptSingleStepInterpolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_interruptSingleStepInterpolation, without timeout: Sends the command MOTION_6F_CLRSTEP to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_negativeDirContinuousPlusDriving(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_53_DRVVM to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_negativeDirContinuousPlusDriving_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_negativeDirContinuousPlusDriving, without timeout: Sends the command MOTION_53_DRVVM to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_oneAxisLinearInterpolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_60_LHK1 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_oneAxisLinearInterpolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_oneAxisLinearInterpolation, without timeout: Sends the command MOTION_60_LHK1 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_positiveDirContinuousPlusDriving(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_52_DRVVP to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_positiveDirContinuousPlusDriving_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_positiveDirContinuousPlusDriving, without timeout: Sends the command MOTION_52_DRVVP to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_relativePositionDriving(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_50_DRVRL to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_relativePositionDriving_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_relativePositionDriving, without timeout: Sends the command MOTION_50_DRVRL to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_releaseDrivingStart(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_78_DFREE to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): the axis byte as given: a mask of axes, bit n for axis n
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: never: the call raises AttributeError and sends nothing
        
        Raises, before anything is sent:
            AttributeError: always, before any packet: the axis check _checkMotionAxis does not exist in this version.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_releaseDrivingStart_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_releaseDrivingStart, without timeout: Sends the command MOTION_78_DFREE to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): the axis byte as given: a mask of axes, bit n for axis n
        
        Returns:
            int: never: the call raises AttributeError and sends nothing
        
        Raises, before anything is sent:
            AttributeError: always, before any packet: the axis check _checkMotionAxis does not exist in this version.
        """
    def _Motion_reset(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_FE_HDRST to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_resetHardware(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_FE_HDRST to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_resetHardware_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_resetHardware, without timeout: Sends the command MOTION_FE_HDRST to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_resetI2C(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_FD_I2CRST to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_resetI2C_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_resetI2C, without timeout: Sends the command MOTION_FD_I2CRST to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_reset_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_reset, without timeout: Sends the command MOTION_FE_HDRST to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setAcceleration(self, port: int, axis: int, acceleration: int, timeout: float = 3) -> int:
        """
        Writes MOTION_02_AC of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            acceleration (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setAccelerationCounterOffset(self, port: int, axis: int, offset: int, timeout: float = 3) -> int:
        """
        Writes MOTION_0D_AO of an axis (one MOTION packet): a signed 16-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            offset (int): -32768..32767
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setAccelerationCounterOffset_async(self, port: int, axis: int, offset: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setAccelerationCounterOffset, without timeout: Writes MOTION_0D_AO of an axis (one MOTION packet): a signed 16-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            offset (int): -32768..32767
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setAccelerationJerk(self, port: int, axis: int, jerk: int, timeout: float = 3) -> int:
        """
        Writes MOTION_00_JK of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            jerk (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setAccelerationJerk_async(self, port: int, axis: int, jerk: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setAccelerationJerk, without timeout: Writes MOTION_00_JK of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            jerk (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setAcceleration_async(self, port: int, axis: int, acceleration: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setAcceleration, without timeout: Writes MOTION_02_AC of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            acceleration (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setAutoHomeSearchMode1(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_23_H1M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setAutoHomeSearchMode1_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setAutoHomeSearchMode1, without timeout: Writes MOTION_23_H1M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setAutoHomeSearchMode2(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_24_H2M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setAutoHomeSearchMode2_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setAutoHomeSearchMode2, without timeout: Writes MOTION_24_H2M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setCircularCenterPoint(self, port: int, axis: int, point: int, timeout: float = 3) -> int:
        """
        Writes MOTION_08_CP of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            point (int): -2**31..2**31-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setCircularCenterPoint_async(self, port: int, axis: int, point: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setCircularCenterPoint, without timeout: Writes MOTION_08_CP of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            point (int): -2**31..2**31-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setDeceleration(self, port: int, axis: int, deceleration: int, timeout: float = 3) -> int:
        """
        Writes MOTION_03_DC of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            deceleration (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setDecelerationJerk(self, port: int, axis: int, jerk: int, timeout: float = 3) -> int:
        """
        Writes MOTION_01_DJ of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            jerk (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setDecelerationJerk_async(self, port: int, axis: int, jerk: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setDecelerationJerk, without timeout: Writes MOTION_01_DJ of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            jerk (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setDeceleration_async(self, port: int, axis: int, deceleration: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setDeceleration, without timeout: Writes MOTION_03_DC of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            deceleration (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setDrivePositionFinishPoint(self, port: int, axis: int, point: int, timeout: float = 3) -> int:
        """
        Writes MOTION_06_TP of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            point (int): -2**31..2**31-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setDrivePositionFinishPoint_async(self, port: int, axis: int, point: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setDrivePositionFinishPoint, without timeout: Writes MOTION_06_TP of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            point (int): -2**31..2**31-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setDriveSpeed(self, port: int, axis: int, speed: int, timeout: float = 3) -> int:
        """
        Writes MOTION_05_DV of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            speed (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setDriveSpeed_async(self, port: int, axis: int, speed: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setDriveSpeed, without timeout: Writes MOTION_05_DV of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            speed (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setEncoderPulseInputBit0(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_D8_PIMD0 of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setEncoderPulseInputBit0_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setEncoderPulseInputBit0, without timeout: Writes MOTION_D8_PIMD0 of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setEncoderPulseInputBit1(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_D9_PIMD1 of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setEncoderPulseInputBit1_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setEncoderPulseInputBit1, without timeout: Writes MOTION_D9_PIMD1 of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setGPIOValue(self, port: int, axis: int, mask: int, value: int, timeout: float = 3) -> int:
        """
        Writes MOTION_1C_GPIO of an axis (one MOTION packet): a mask and a value byte.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            mask (int): one byte
            value (int): one byte
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setGPIOValue_async(self, port: int, axis: int, mask: int, value: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setGPIOValue, without timeout: Writes MOTION_1C_GPIO of an axis (one MOTION packet): a mask and a value byte.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            mask (int): one byte
            value (int): one byte
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setHelicalCalculation(self, port: int, helical_calculation: int, timeout: float = 3) -> int:
        """
        Writes MOTION_1B_HLV of the chip (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            helical_calculation (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setHelicalCalculation_async(self, port: int, helical_calculation: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setHelicalCalculation, without timeout: Writes MOTION_1B_HLV of the chip (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            helical_calculation (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setHelicalRotationNumber(self, port: int, helical_rotation_number: int, timeout: float = 3) -> int:
        """
        Writes MOTION_1A_HLN of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            helical_rotation_number (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setHelicalRotationNumber_async(self, port: int, helical_rotation_number: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setHelicalRotationNumber, without timeout: Writes MOTION_1A_HLN of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            helical_rotation_number (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setHomeSearchSpeed(self, port: int, axis: int, speed: int, timeout: float = 3) -> int:
        """
        Writes MOTION_14_HV of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            speed (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setHomeSearchSpeed_async(self, port: int, axis: int, speed: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setHomeSearchSpeed, without timeout: Writes MOTION_14_HV of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            speed (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setIncreasingOrDecreasingSpeed(self, port: int, axis: int, speed: int, timeout: float = 3) -> int:
        """
        Writes MOTION_15_IV of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            speed (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setIncreasingOrDecreasingSpeed_async(self, port: int, axis: int, speed: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setIncreasingOrDecreasingSpeed, without timeout: Writes MOTION_15_IV of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            speed (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setInitialSpeed(self, port: int, axis: int, speed: int, timeout: float = 3) -> int:
        """
        Writes MOTION_04_SV of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            speed (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setInitialSpeed_async(self, port: int, axis: int, speed: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setInitialSpeed, without timeout: Writes MOTION_04_SV of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            speed (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setInputSignalFilterMode(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_25_FLM of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setInputSignalFilterMode_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setInputSignalFilterMode, without timeout: Writes MOTION_25_FLM of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setInterpolationMode(self, port: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_2A_IPM of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setInterpolationMode_async(self, port: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setInterpolationMode, without timeout: Writes MOTION_2A_IPM of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setLogicalCounterMaxValue(self, port: int, axis: int, value: int, timeout: float = 3) -> int:
        """
        Writes MOTION_0E_LX of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            value (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLogicalCounterMaxValue_async(self, port: int, axis: int, value: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLogicalCounterMaxValue, without timeout: Writes MOTION_0E_LX of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            value (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setLogicalLevelDrivingStop0(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_C0_SP0L of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLogicalLevelDrivingStop0_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLogicalLevelDrivingStop0, without timeout: Writes MOTION_C0_SP0L of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setLogicalLevelDrivingStop1(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_C2_SP1L of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLogicalLevelDrivingStop1_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLogicalLevelDrivingStop1, without timeout: Writes MOTION_C2_SP1L of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setLogicalLevelDrivingStop2(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_C4_SP2L of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLogicalLevelDrivingStop2_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLogicalLevelDrivingStop2, without timeout: Writes MOTION_C4_SP2L of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setLogicalLevelHardwareLimit(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_CA_HLML of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLogicalLevelHardwareLimit_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLogicalLevelHardwareLimit, without timeout: Writes MOTION_CA_HLML of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setLogicalLevelInposition(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_C6_INPL of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLogicalLevelInposition_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLogicalLevelInposition, without timeout: Writes MOTION_C6_INPL of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setLogicalLevelOfDrivingPulse(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_D5_DPL of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLogicalLevelOfDrivingPulse_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLogicalLevelOfDrivingPulse, without timeout: Writes MOTION_D5_DPL of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setLogicalLevelOfEncoderInputSignal(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_DA_PIL of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLogicalLevelOfEncoderInputSignal_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLogicalLevelOfEncoderInputSignal, without timeout: Writes MOTION_DA_PIL of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setLogicalLevelOfOnePulse(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_D6_DIRL of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLogicalLevelOfOnePulse_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLogicalLevelOfOnePulse, without timeout: Writes MOTION_D6_DIRL of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setLogicalLevelServoAlarm(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_C8_ALML of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLogicalLevelServoAlarm_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLogicalLevelServoAlarm, without timeout: Writes MOTION_C8_ALML of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setManualDecelerationPoint(self, port: int, axis: int, point: int, timeout: float = 3) -> int:
        """
        Writes MOTION_07_DP of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            point (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setManualDecelerationPoint_async(self, port: int, axis: int, point: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setManualDecelerationPoint, without timeout: Writes MOTION_07_DP of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            point (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setMaxInterpolationPoint(self, port: int, point: int, timeout: float = 3) -> int:
        """
        Writes MOTION_19_TX of the chip (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            point (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setMaxInterpolationPoint_async(self, port: int, point: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setMaxInterpolationPoint, without timeout: Writes MOTION_19_TX of the chip (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            point (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setMultiPurposeMode(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_20_MRM of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setMultiPurposeMode_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setMultiPurposeMode, without timeout: Writes MOTION_20_MRM of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setMultiPurposeRegister0(self, port: int, axis: int, position: int, timeout: float = 3) -> int:
        """
        Writes MOTION_10_MR0 of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            position (int): -2**31..2**31-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setMultiPurposeRegister0_async(self, port: int, axis: int, position: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setMultiPurposeRegister0, without timeout: Writes MOTION_10_MR0 of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            position (int): -2**31..2**31-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setMultiPurposeRegister1(self, port: int, axis: int, register: int, timeout: float = 3) -> int:
        """
        Writes MOTION_11_MR1 of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            register (int): -2**31..2**31-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setMultiPurposeRegister1_async(self, port: int, axis: int, register: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setMultiPurposeRegister1, without timeout: Writes MOTION_11_MR1 of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            register (int): -2**31..2**31-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setMultiPurposeRegister2(self, port: int, axis: int, register: int, timeout: float = 3) -> int:
        """
        Writes MOTION_12_MR2 of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            register (int): -2**31..2**31-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setMultiPurposeRegister2_async(self, port: int, axis: int, register: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setMultiPurposeRegister2, without timeout: Writes MOTION_12_MR2 of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            register (int): -2**31..2**31-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setMultiPurposeRegister3(self, port: int, axis: int, register: int, timeout: float = 3) -> int:
        """
        Writes MOTION_13_MR3 of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            register (int): -2**31..2**31-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setMultiPurposeRegister3_async(self, port: int, axis: int, register: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setMultiPurposeRegister3, without timeout: Writes MOTION_13_MR3 of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            register (int): -2**31..2**31-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setPIOSignal1(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_21_P1M of an axis (one MOTION packet): the fixed word 0x5505.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): the axis byte as given: a mask of axes, bit n for axis n
            state (int): not sent
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setPIOSignal1_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setPIOSignal1, without timeout: Writes MOTION_21_P1M of an axis (one MOTION packet): the fixed word 0x5505.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): the axis byte as given: a mask of axes, bit n for axis n
            state (int): not sent
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setPIOSignal2(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_22_P2M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setPIOSignal2_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setPIOSignal2, without timeout: Writes MOTION_22_P2M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setPulseModeBit0(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_D3_DPMD0 of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setPulseModeBit0_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setPulseModeBit0, without timeout: Writes MOTION_D3_DPMD0 of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setPulseModeBit1(self, port: int, axis: int, on_state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_D4_DPMD1 of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setPulseModeBit1_async(self, port: int, axis: int, on_state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setPulseModeBit1, without timeout: Writes MOTION_D4_DPMD1 of an axis (one MOTION packet): a single switch.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            on_state (int): 0 or 1 by intent, sent as one byte as given
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setRealCounterMaxValue(self, port: int, axis: int, value: int, timeout: float = 3) -> int:
        """
        Writes MOTION_0F_RX of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            value (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setRealCounterMaxValue_async(self, port: int, axis: int, value: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setRealCounterMaxValue, without timeout: Writes MOTION_0F_RX of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            value (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setRealPositionCounter(self, port: int, axis: int, counter: int, timeout: float = 3) -> int:
        """
        Writes MOTION_0A_RP of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            counter (int): -2**31..2**31-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setRealPositionCounter_async(self, port: int, axis: int, counter: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setRealPositionCounter, without timeout: Writes MOTION_0A_RP of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            counter (int): -2**31..2**31-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setSYNCAction0(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_26_S0M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setSYNCAction0_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setSYNCAction0, without timeout: Writes MOTION_26_S0M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setSYNCAction1(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_27_S1M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setSYNCAction1_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setSYNCAction1, without timeout: Writes MOTION_27_S1M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setSYNCAction2(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_28_S2M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setSYNCAction2_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setSYNCAction2, without timeout: Writes MOTION_28_S2M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setSYNCAction3(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_29_S3M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setSYNCAction3_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setSYNCAction3, without timeout: Writes MOTION_29_S3M of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setSoftwareLimitM(self, port: int, axis: int, position: int, timeout: float = 3) -> int:
        """
        Writes MOTION_0C_SM of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            position (int): -2**31..2**31-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setSoftwareLimitM_async(self, port: int, axis: int, position: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setSoftwareLimitM, without timeout: Writes MOTION_0C_SM of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            position (int): -2**31..2**31-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setSoftwareLimitP(self, port: int, axis: int, position: int, timeout: float = 3) -> int:
        """
        Writes MOTION_0B_SP of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            position (int): -2**31..2**31-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setSoftwareLimitP_async(self, port: int, axis: int, position: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setSoftwareLimitP, without timeout: Writes MOTION_0B_SP of an axis (one MOTION packet): a signed 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            position (int): -2**31..2**31-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_setTimer(self, port: int, axis: int, timer: int, timeout: float = 3) -> int:
        """
        Writes MOTION_16_TM of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timer (int): 0..2**32-1; a float is truncated
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setTimer_async(self, port: int, axis: int, timer: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setTimer, without timeout: Writes MOTION_16_TM of an axis (one MOTION packet): an unsigned 32-bit value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timer (int): 0..2**32-1; a float is truncated
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_splitPulse1(self, port: int, axis: int, pulse_width: int, pulse_period: int, timeout: float = 3) -> int:
        """
        Writes MOTION_17_SP1 of an axis (one MOTION packet): two 16-bit values.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            pulse_width (int): 0..65535
            pulse_period (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_splitPulse1_async(self, port: int, axis: int, pulse_width: int, pulse_period: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_splitPulse1, without timeout: Writes MOTION_17_SP1 of an axis (one MOTION packet): two 16-bit values.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            pulse_width (int): 0..65535
            pulse_period (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_splitPulse2(self, port: int, axis: int, pulse_number: int, timeout: float = 3) -> int:
        """
        Writes MOTION_16_TM of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            pulse_number (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_splitPulse2_async(self, port: int, axis: int, pulse_number: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_splitPulse2, without timeout: Writes MOTION_16_TM of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            pulse_number (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_startSplitPulse(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_75_SPSTA to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_startSplitPulse_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_startSplitPulse, without timeout: Sends the command MOTION_75_SPSTA to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_startTimer(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_73_TMSTA to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_startTimer_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_startTimer, without timeout: Sends the command MOTION_73_TMSTA to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_stopSplitPulse(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_76_SPSTP to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_stopSplitPulse_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_stopSplitPulse, without timeout: Sends the command MOTION_76_SPSTP to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_stopTimer(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_74_TMSTP to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_stopTimer_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_stopTimer, without timeout: Sends the command MOTION_74_TMSTP to an axis (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_threeAxisLinearInterpolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_62_LHK3 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_threeAxisLinearInterpolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_threeAxisLinearInterpolation, without timeout: Sends the command MOTION_62_LHK3 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_threeAxisPatternPolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_67_BHK3 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_threeAxisPatternPolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_threeAxisPatternPolation, without timeout: Sends the command MOTION_67_BHK3 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_twoAxisLinearInterpolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_61_LHK2 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_twoAxisLinearInterpolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_twoAxisLinearInterpolation, without timeout: Sends the command MOTION_61_LHK2 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_twoAxisPatternPolation(self, port: int, timeout: float = 3) -> int:
        """
        Sends the command MOTION_66_BHK2 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_twoAxisPatternPolation_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_twoAxisPatternPolation, without timeout: Sends the command MOTION_66_BHK2 to the chip (one MOTION packet).
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeRR0(self, port: int, timeout: float = 3) -> int:
        """
        Reads MOTION_E8_RR0 of the chip (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeRR0_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeRR0, without timeout: Reads MOTION_E8_RR0 of the chip (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeRR1(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_E9_RR1 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeRR1_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeRR1, without timeout: Reads MOTION_E9_RR1 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeRR2(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads MOTION_EA_RR2 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeRR2_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeRR2, without timeout: Reads MOTION_EA_RR2 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeRR3(self, port: int, axis: int, page: int, timeout: float = 3) -> int:
        """
        Reads MOTION_EB_RR3 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            page (int): the RR3 page, one byte
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeRR3_async(self, port: int, axis: int, page: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeRR3, without timeout: Reads MOTION_EB_RR3 of an axis (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            page (int): the RR3 page, one byte
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeRR4(self, port: int, timeout: float = 3) -> int:
        """
        Reads MOTION_EC_RR4 of the chip (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeRR4_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeRR4, without timeout: Reads MOTION_EC_RR4 of the chip (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeRR5(self, port: int, timeout: float = 3) -> int:
        """
        Reads MOTION_ED_RR5 of the chip (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeRR5_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeRR5, without timeout: Reads MOTION_ED_RR5 of the chip (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeRR6(self, port: int, timeout: float = 3) -> int:
        """
        Reads MOTION_EE_RR6 of the chip (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeRR6_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeRR6, without timeout: Reads MOTION_EE_RR6 of the chip (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeRR7(self, port: int, timeout: float = 3) -> int:
        """
        Reads MOTION_EF_RR7 of the chip (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeRR7_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeRR7, without timeout: Reads MOTION_EF_RR7 of the chip (one MOTION packet): a 16-bit unsigned value.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
        
        Returns:
            int: the value read from the reply
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeWR0(self, port: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_E0_WR0 of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeWR0_async(self, port: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeWR0, without timeout: Writes MOTION_E0_WR0 of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeWR1(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_E1_WR1 of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeWR1_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeWR1, without timeout: Writes MOTION_E1_WR1 of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeWR2(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_E2_WR2 of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeWR2_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeWR2, without timeout: Writes MOTION_E2_WR2 of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeWR3(self, port: int, axis: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_E3_WR3 of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeWR3_async(self, port: int, axis: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeWR3, without timeout: Writes MOTION_E3_WR3 of an axis (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            axis (int): 0..3, sent as the one-hot mask 1 << axis
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeWR4(self, port: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_E4_WR4 of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeWR4_async(self, port: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeWR4, without timeout: Writes MOTION_E4_WR4 of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeWR5(self, port: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_E5_WR5 of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeWR5_async(self, port: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeWR5, without timeout: Writes MOTION_E5_WR5 of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeWR6(self, port: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_E6_WR6 of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeWR6_async(self, port: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeWR6, without timeout: Writes MOTION_E6_WR6 of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _Motion_writeWR7(self, port: int, state: int, timeout: float = 3) -> int:
        """
        Writes MOTION_E7_WR7 of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeWR7_async(self, port: int, state: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeWR7, without timeout: Writes MOTION_E7_WR7 of the chip (one MOTION packet): a 16-bit word.
        
        Args:
            port (int): motion port byte as given (not translated or checked)
            state (int): 0..65535
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            TypeError: an argument that is not a number.
            ValueError: a value outside its width, or a byte outside 0..255.
        """
    def _getAxisHandle(self, axis: typing.SupportsInt | typing.SupportsIndex) -> MotionAxis:
        ...
    @property
    def axis_1(self) -> MotionAxis:
        ...
    @property
    def axis_2(self) -> MotionAxis:
        ...
    @property
    def axis_3(self) -> MotionAxis:
        ...
    @property
    def axis_4(self) -> MotionAxis:
        ...
    @property
    def circular_interpo(self) -> MotionCircularInterpolation:
        ...
    @property
    def helical_interpo(self) -> MotionHelicalInterpolation:
        ...
    @property
    def linear_interpo(self) -> MotionLinearInterpolation:
        ...
    @property
    def motion_ini(self) -> MotionInifile:
        ...
class ThermalModule:
    """
    Temperature inputs: what thermocouples and resistance sensors share.
    """
    @staticmethod
    def _checkThermalFilterMode(mode: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkThermalRTDType(rtd_type: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkThermalSamplingMode(mode: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkThermalTCType(tc_type: typing.Any) -> bool:
        ...
    def Thermal_close(self, port: int, timeout: float = 3) -> int:
        """
        Closes a thermal port; on KestrelTherm nothing is checked or sent and 0 returned.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Thermal_close_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Thermal_close, without timeout: Closes a thermal port; on KestrelTherm nothing is checked or sent and 0 returned.
        
        Args:
            port (int): thermal port, a key of thermal_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
        """
    def Thermal_getPinMap(self) -> dict:
        """
        Thermal_getPinMap(self) -> dict[int, list[tuple[int, int]]]
        
        thermal_dict: each thermal port and the (pin-map port, pin) pairs it occupies.
        """
    def Thermal_getStatus(self, port: int, channel: int, timeout: float = 3) -> int:
        """
        Reads a sensor's status bits (on Plover-Tc bit 0 only: open-circuit fault).
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the status bits
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Thermal_getStatus_async(self, port: int, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Thermal_getStatus, without timeout: Reads a sensor's status bits (on Plover-Tc bit 0 only: open-circuit fault).
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
        
        Returns:
            int: the status bits
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
        """
    def Thermal_open(self, port: int, timeout: float = 3) -> int:
        """
        Opens a thermal port (its pins must be Idle, DI or DO, except on KestrelTherm).
        
        Args:
            port (int): thermal port, a key of thermal_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict, or a pin of it serves another function.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Thermal_open_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Thermal_open, without timeout: Opens a thermal port (its pins must be Idle, DI or DO, except on KestrelTherm).
        
        Args:
            port (int): thermal port, a key of thermal_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict, or a pin of it serves another function.
        """
    def Thermal_readSensor(self, port: int, channel: int, timeout: float = 3) -> float:
        """
        Reads a temperature.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            float: degrees Celsius, rounded to 3 decimal places
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Thermal_readSensor_async(self, port: int, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, float]:
        """
        Awaitable Thermal_readSensor, without timeout: Reads a temperature.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
        
        Returns:
            float: degrees Celsius, rounded to 3 decimal places
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
        """
    def _Thermal_getPinMapPort(self, thermal_port: typing.Any) -> list[int]:
        """
        The pin-map ports of a thermal port.
        """
    def _Thermal_loadOffset(self, port: int, channel: int, timeout: float = 3) -> float:
        """
        Loads a channel's saved offset.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            float: degrees Celsius
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Thermal_loadOffset_async(self, port: int, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, float]:
        """
        Awaitable _Thermal_loadOffset, without timeout: Loads a channel's saved offset.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
        
        Returns:
            float: degrees Celsius
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
        """
    def _Thermal_readOffset(self, port: int, channel: int, timeout: float = 3) -> float:
        """
        Reads a channel's offset.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            float: degrees Celsius
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Thermal_readOffset_async(self, port: int, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, float]:
        """
        Awaitable _Thermal_readOffset, without timeout: Reads a channel's offset.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
        
        Returns:
            float: degrees Celsius
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
        """
    def _Thermal_saveOffset(self, port: int, channel: int, temperature: float, timeout: float = 3) -> int:
        """
        Saves a channel's offset in the device.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            temperature (float): degrees Celsius, sent as a 32-bit float
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int, or temperature not a number.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Thermal_saveOffset_async(self, port: int, channel: int, temperature: float) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Thermal_saveOffset, without timeout: Saves a channel's offset in the device.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            temperature (float): degrees Celsius, sent as a 32-bit float
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int, or temperature not a number.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
        """
    def _Thermal_setNoiseFilter(self, port: int, channel: int, mode: int, timeout: float = 3) -> int:
        """
        Sets the mains filter of a channel.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            mode (int): 0: 60 Hz (device default), 1: 50 Hz
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, channel or mode is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            ThermalModeNotVaildError: mode is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Thermal_setNoiseFilter_async(self, port: int, channel: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Thermal_setNoiseFilter, without timeout: Sets the mains filter of a channel.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            mode (int): 0: 60 Hz (device default), 1: 50 Hz
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, channel or mode is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            ThermalModeNotVaildError: mode is not 0 or 1.
        """
    def _Thermal_writeOffset(self, port: int, channel: int, temperature: float, timeout: float = 3) -> int:
        """
        Sets a channel's offset.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            temperature (float): degrees Celsius, sent as a 32-bit float
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int, or temperature not a number.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Thermal_writeOffset_async(self, port: int, channel: int, temperature: float) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Thermal_writeOffset, without timeout: Sets a channel's offset.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            temperature (float): degrees Celsius, sent as a 32-bit float
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int, or temperature not a number.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
        """
    def _checkThermalChipSelect(self, cs: typing.Any) -> bool:
        ...
    def _checkThermalPinState(self, port: int, allow_state: list[str], timeout: float = 3) -> bool:
        """
        Checks that every pin of the port is in one of the allowed modes.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            allow_state (list[str]): allowed pin modes, e.g. ["Idle", "DI", "DO"]
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            bool: True
        
        Raises, before anything is sent:
            ThermalPortNotAvaliableError: a pin of the port in another mode.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _checkThermalPinState_async(self, port: int, allow_state: list[str]) -> collections.abc.Coroutine[typing.Any, typing.Any, bool]:
        """
        Awaitable _checkThermalPinState, without timeout: Checks that every pin of the port is in one of the allowed modes.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            allow_state (list[str]): allowed pin modes, e.g. ["Idle", "DI", "DO"]
        
        Returns:
            bool: True
        
        Raises, before anything is sent:
            ThermalPortNotAvaliableError: a pin of the port in another mode.
        """
    def _checkThermalPort(self, port: typing.Any) -> bool:
        ...
class AHRSModule:
    """
    The attitude sensor of HeronAinImu: orientation and acceleration estimated on the device.
    """
    def AHRS_close(self, port: int, timeout: float = 3) -> int:
        """
        Closes the inertial unit.
        
        Args:
            port (int): 0, the key of ahrs_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AHRS_close_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AHRS_close, without timeout: Closes the inertial unit.
        
        Args:
            port (int): 0, the key of ahrs_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
        """
    def AHRS_getEstimate(self, port: int, mode: int, timeout: float = 3) -> list[float]:
        """
        Reads the current estimate.
        
        Args:
            port (int): 0, the key of ahrs_dict
            mode (int): 0: orientation, 1: acceleration, 2: both
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[float]: mode 0: roll, pitch, yaw in degrees; 1: three accelerations as the device gives them; 2: the three angles, then the three accelerations; 4 decimal places
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict, or mode is not 0..2.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AHRS_getEstimate_async(self, port: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[float]]:
        """
        Awaitable AHRS_getEstimate, without timeout: Reads the current estimate.
        
        Args:
            port (int): 0, the key of ahrs_dict
            mode (int): 0: orientation, 1: acceleration, 2: both
        
        Returns:
            list[float]: mode 0: roll, pitch, yaw in degrees; 1: three accelerations as the device gives them; 2: the three angles, then the three accelerations; 4 decimal places
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict, or mode is not 0..2.
        """
    def AHRS_open(self, port: int, timeout: float = 3) -> int:
        """
        Opens the inertial unit.
        
        Args:
            port (int): 0, the key of ahrs_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AHRS_open_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AHRS_open, without timeout: Opens the inertial unit.
        
        Args:
            port (int): 0, the key of ahrs_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
        """
    def AHRS_reset(self, port: int, timeout: float = 3) -> int:
        """
        Resets the estimator.
        
        Args:
            port (int): 0, the key of ahrs_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AHRS_reset_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AHRS_reset, without timeout: Resets the estimator.
        
        Args:
            port (int): 0, the key of ahrs_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
        """
    def AHRS_setSamplingPeriod(self, port: int, sampling_period: float, timeout: float = 3) -> int:
        """
        Sets the estimator's period; gravity 9.81 and z offset 0.001 go with it.
        
        Args:
            port (int): 0, the key of ahrs_dict
            sampling_period (float): seconds, sent as a 32-bit float
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or a value not a number.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AHRS_setSamplingPeriod_async(self, port: int, sampling_period: float) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AHRS_setSamplingPeriod, without timeout: Sets the estimator's period; gravity 9.81 and z offset 0.001 go with it.
        
        Args:
            port (int): 0, the key of ahrs_dict
            sampling_period (float): seconds, sent as a 32-bit float
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or a value not a number.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
        """
    def AHRS_start(self, port: int, timeout: float = 3) -> int:
        """
        Starts the estimator (both estimates); sent without waiting for a reply.
        
        Args:
            port (int): 0, the key of ahrs_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AHRS_start_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AHRS_start, without timeout: Starts the estimator (both estimates); sent without waiting for a reply.
        
        Args:
            port (int): 0, the key of ahrs_dict
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
        """
    def AHRS_stop(self, port: int, timeout: float = 3) -> int:
        """
        Stops the estimator.
        
        Args:
            port (int): 0, the key of ahrs_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def AHRS_stop_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AHRS_stop, without timeout: Stops the estimator.
        
        Args:
            port (int): 0, the key of ahrs_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
        """
    def _AHRS_VQF_setTau(self, port: int, accelerator_decay_time: float, magnetometer_decay_time: float, timeout: float = 3) -> int:
        """
        Sets the filter's decay times.
        
        Args:
            port (int): 0, the key of ahrs_dict
            accelerator_decay_time (float): seconds
            magnetometer_decay_time (float): seconds
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or a value not a number.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        
        _AHRS_VQF_setTau(self, port: int, accelerator_decay_time: float, magnetometer_decay_time: float) -> collections.abc.Coroutine[typing.Any, typing.Any, int]
        
        Awaitable _AHRS_VQF_setTau, without timeout: Sets the filter's decay times.
        
        Args:
            port (int): 0, the key of ahrs_dict
            accelerator_decay_time (float): seconds
            magnetometer_decay_time (float): seconds
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or a value not a number.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
        """
    def _AHRS_setGeneral(self, port: int, gravity: float, dt: float, z_offset: float, timeout: float = 3) -> int:
        """
        Sets gravity, the period and the z offset of the estimator.
        
        Args:
            port (int): 0, the key of ahrs_dict
            gravity (float): m/s^2
            dt (float): seconds
            z_offset (float): z offset
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or a value not a number.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _AHRS_setGeneral_async(self, port: int, gravity: float, dt: float, z_offset: float) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _AHRS_setGeneral, without timeout: Sets gravity, the period and the z offset of the estimator.
        
        Args:
            port (int): 0, the key of ahrs_dict
            gravity (float): m/s^2
            dt (float): seconds
            z_offset (float): z offset
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or a value not a number.
            AHRSPortNotAvaliableError: port is not a key of ahrs_dict.
        """
    def _checkAHRSMode(self, mode: typing.Any) -> bool:
        ...
    def _checkAHRSPort(self, port: typing.Any) -> bool:
        ...
    def _convertModeToMask(self, mode: typing.Any) -> int:
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
    def AI_getReadDropped(self, port: int) -> int:
        """
        Samples of the port that the decoder dropped on a full queue between the port's previous stream read and its latest one (any of the read methods); nothing is sent.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
        
        Returns:
            int: 0 when none were lost or before the first read; on Trellis the most that any enabled chip select lost
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def AI_getReadDropped_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AI_getReadDropped, without timeout: Samples of the port that the decoder dropped on a full queue between the port's previous stream read and its latest one (any of the read methods); nothing is sent.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
        
        Returns:
            int: 0 when none were lost or before the first read; on Trellis the most that any enabled chip select lost
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
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
    def AI_readStreamingArray(self, port: int, num_samples: int, delay: float = 0.005) -> numpy.typing.NDArray[numpy.float64]:
        """
        Takes decoded samples as one float64 array, waiting as AI_readStreaming does.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            num_samples (int): samples wanted
            delay (float): seconds to wait for the samples (default 0.005)
        
        Returns:
            numpy.typing.NDArray[numpy.float64]: shape (samples, values): one row per sample, the values AI_readStreaming gives it; fewer rows than asked when delay ran out
        
        Raises, before anything is sent:
            ImportError: numpy is not installed.
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def AI_readStreamingArray_async(self, port: int, num_samples: int, delay: float = 0.005) -> collections.abc.Coroutine[typing.Any, typing.Any, numpy.typing.NDArray[numpy.float64]]:
        """
        Awaitable AI_readStreamingArray, without timeout: Takes decoded samples as one float64 array, waiting as AI_readStreaming does.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            num_samples (int): samples wanted
            delay (float): seconds to wait for the samples (default 0.005)
        
        Returns:
            numpy.typing.NDArray[numpy.float64]: shape (samples, values): one row per sample, the values AI_readStreaming gives it; fewer rows than asked when delay ran out
        
        Raises, before anything is sent:
            ImportError: numpy is not installed.
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
        """
    def AI_readStreamingInto(self, port: int, out: numpy.typing.NDArray[numpy.float64], delay: float = 0.005) -> int:
        """
        Fills rows of a preallocated float64 array with decoded samples, waiting until every row can be filled or delay passed.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            out (numpy.typing.NDArray[numpy.float64]): writable, C-contiguous, shape (rows, values per sample): values is ai_num_channels (times the enabled chip selects on Trellis)
            delay (float): seconds to wait for the samples (default 0.005)
        
        Returns:
            int: samples written, rows 0 to n-1 of out; the rest of out is left as it was
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            TypeError: out does not hold float64 values.
            ValueError: out is not 2-D with a row per sample, or not C-contiguous.
            BufferError: out is read-only.
        """
    def AI_readStreamingInto_async(self, port: int, out: numpy.typing.NDArray[numpy.float64], delay: float = 0.005) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable AI_readStreamingInto, without timeout: Fills rows of a preallocated float64 array with decoded samples, waiting until every row can be filled or delay passed.
        
        Args:
            port (int): AI port, a key of ai_dict (on Trellis the slot: 1, 2 or 4)
            out (numpy.typing.NDArray[numpy.float64]): writable, C-contiguous, shape (rows, values per sample): values is ai_num_channels (times the enabled chip selects on Trellis)
            delay (float): seconds to wait for the samples (default 0.005)
        
        Returns:
            int: samples written, rows 0 to n-1 of out; the rest of out is left as it was
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            AIPortNotAvaliableError: port is not a key of ai_dict.
            TypeError: out does not hold float64 values.
            ValueError: out is not 2-D with a row per sample, or not C-contiguous.
            BufferError: out is read-only.
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
    def _AI_sampleWidth(self, port: int) -> int:
        """
        Values per sample of the port now: the column count of an array read.
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
class CANModule:
    """
    The device's CAN controller: open, bus speed, receive filters, start, write and read frames, stop, close; received frames are streamed by the device onto one queue.
    """
    @staticmethod
    def _checkCANDataRangeAndLength(data: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkCANSpeed(speed: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkCANTXIndex(mode: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkCANTXPriority(mode: typing.Any) -> bool:
        ...
    def CAN_close(self, port: int, timeout: float = 3) -> int:
        """
        Stops and closes the controller; when the stop fails, returns its code and sends no close.
        
        Args:
            port (int): CAN port, a key of can_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def CAN_close_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable CAN_close, without timeout: Stops and closes the controller; when the stop fails, returns its code and sends no close.
        
        Args:
            port (int): CAN port, a key of can_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def CAN_getPort(self) -> list[int]:
        """
        The CAN ports; nothing is sent.
        
        Returns:
            list[int]: the keys of can_dict
        """
    def CAN_getPort_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable CAN_getPort, without timeout: The CAN ports; nothing is sent.
        
        Returns:
            list[int]: the keys of can_dict
        """
    def CAN_open(self, port: int, timeout: float = 3) -> int:
        """
        Opens the controller after reading the modes of its pins; the first open after a close lets the stream thread run.
        
        Args:
            port (int): CAN port, a key of can_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict, or (after the pin-mode read) a pin index of the bus is in a mode other than Idle, DI or DO on one of the bus's digital ports.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def CAN_open_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable CAN_open, without timeout: Opens the controller after reading the modes of its pins; the first open after a close lets the stream thread run.
        
        Args:
            port (int): CAN port, a key of can_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict, or (after the pin-mode read) a pin index of the bus is in a mode other than Idle, DI or DO on one of the bus's digital ports.
        """
    def CAN_read(self, port: int, num_frames: int, delay: float = 0.005) -> list[CANFrame]:
        """
        Takes received frames (one queue for the controller). The blocking method waits until num_frames are there, open or not; the awaitable twin takes what is there, up to num_frames, without waiting.
        
        Args:
            port (int): CAN port, a key of can_dict
            num_frames (int): how many frames; -1 for all that are there
            delay (float): kept for the interface; a frame wakes the reader at once (default 0.005)
        
        Returns:
            list[CANFrame]: the frames, oldest first
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or num_frames is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def CAN_read_async(self, port: int, num_frames: int, delay: float = 0.005) -> collections.abc.Coroutine[typing.Any, typing.Any, list[CANFrame]]:
        """
        Awaitable CAN_read, without timeout: Takes received frames (one queue for the controller). The blocking method waits until num_frames are there, open or not; the awaitable twin takes what is there, up to num_frames, without waiting.
        
        Args:
            port (int): CAN port, a key of can_dict
            num_frames (int): how many frames; -1 for all that are there
            delay (float): kept for the interface; a frame wakes the reader at once (default 0.005)
        
        Returns:
            list[CANFrame]: the frames, oldest first
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or num_frames is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def CAN_setRXFilterOrMask(self, port: int, index: int, id_: int, remote: bool = False, extended_id: bool = False, timeout: float = 3) -> int:
        """
        Writes one receive filter or mask as a frame's identifier word.
        
        Args:
            port (int): CAN port, a key of can_dict
            index (int): filter or mask number, the firmware's (not checked)
            id_ (int): identifier bits
            remote (bool): the remote bit (default False)
            extended_id (bool): a 29-bit identifier (default False)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or id_ is not an int, or remote or extended_id not a bool.
            CANPortNotAvaliableError: port is not a key of can_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def CAN_setRXFilterOrMask_async(self, port: int, index: int, id_: int, remote: bool = False, extended_id: bool = False) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable CAN_setRXFilterOrMask, without timeout: Writes one receive filter or mask as a frame's identifier word.
        
        Args:
            port (int): CAN port, a key of can_dict
            index (int): filter or mask number, the firmware's (not checked)
            id_ (int): identifier bits
            remote (bool): the remote bit (default False)
            extended_id (bool): a 29-bit identifier (default False)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or id_ is not an int, or remote or extended_id not a bool.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def CAN_setRXFilteringOn(self, port: int, on_off: bool, timeout: float = 3) -> int:
        """
        Turns the receive filters on or off.
        
        Args:
            port (int): CAN port, a key of can_dict
            on_off (bool): True: only frames that pass the filters are received
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or the flag not a bool.
            CANPortNotAvaliableError: port is not a key of can_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def CAN_setRXFilteringOn_async(self, port: int, on_off: bool) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable CAN_setRXFilteringOn, without timeout: Turns the receive filters on or off.
        
        Args:
            port (int): CAN port, a key of can_dict
            on_off (bool): True: only frames that pass the filters are received
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or the flag not a bool.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def CAN_setSpeed(self, port: int, speed_mode: int, timeout: float = 3) -> int:
        """
        Sets the bus speed.
        
        Args:
            port (int): CAN port, a key of can_dict
            speed_mode (int): 0..3, passed to the firmware as it is
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or speed_mode is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
            CANSpeedNotVaildError: speed_mode not in 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def CAN_setSpeed_async(self, port: int, speed_mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable CAN_setSpeed, without timeout: Sets the bus speed.
        
        Args:
            port (int): CAN port, a key of can_dict
            speed_mode (int): 0..3, passed to the firmware as it is
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or speed_mode is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
            CANSpeedNotVaildError: speed_mode not in 0..3.
        """
    def CAN_start(self, port: int, timeout: float = 3) -> int:
        """
        Starts the controller. The blocking method sends START_CAN as an exchange and waits for an answer the firmware gives as a stream record, so it ends in ReceivePacketTimeoutError after its timeout; the awaitable twin sends and returns 0 at once.
        
        Args:
            port (int): CAN port, a key of can_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def CAN_start_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable CAN_start, without timeout: Starts the controller. The blocking method sends START_CAN as an exchange and waits for an answer the firmware gives as a stream record, so it ends in ReceivePacketTimeoutError after its timeout; the awaitable twin sends and returns 0 at once.
        
        Args:
            port (int): CAN port, a key of can_dict
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def CAN_stop(self, port: int, timeout: float = 3) -> int:
        """
        Stops the controller.
        
        Args:
            port (int): CAN port, a key of can_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def CAN_stop_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable CAN_stop, without timeout: Stops the controller.
        
        Args:
            port (int): CAN port, a key of can_dict
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def CAN_write(self, port: int, id_: int, data: list[int] | None, remote: bool = False, extended_id: bool = False, timeout: float = 3) -> int:
        """
        Writes one frame (TX index 0).
        
        Args:
            port (int): CAN port, a key of can_dict
            id_ (int): identifier, 11 or 29 bits
            data (list[int] | None): up to 8 bytes; ignored (eight zeros) for a remote frame
            remote (bool): a remote frame (default False)
            extended_id (bool): a 29-bit identifier (default False)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or id_ not an int, remote or extended_id not a bool, data not a list.
            CANPortNotAvaliableError: port is not a key of can_dict.
            CANDataLengthNotVaildError: more than 8 data bytes.
            InputDataNotInRangeError: a data byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def CAN_write_async(self, port: int, id_: int, data: list[int] | None, remote: bool = False, extended_id: bool = False) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable CAN_write, without timeout: Writes one frame (TX index 0).
        
        Args:
            port (int): CAN port, a key of can_dict
            id_ (int): identifier, 11 or 29 bits
            data (list[int] | None): up to 8 bytes; ignored (eight zeros) for a remote frame
            remote (bool): a remote frame (default False)
            extended_id (bool): a 29-bit identifier (default False)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or id_ not an int, remote or extended_id not a bool, data not a list.
            CANPortNotAvaliableError: port is not a key of can_dict.
            CANDataLengthNotVaildError: more than 8 data bytes.
            InputDataNotInRangeError: a data byte outside 0..255.
        """
    def _CAN_free(self) -> None:
        """
        Ends the stream thread (the model's close does this and joins it).
        """
    def _CAN_getCounters(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads the controller's six 32-bit counters.
        
        Args:
            port (int): CAN port, a key of can_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: six counters, the firmware's order
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _CAN_getCounters_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _CAN_getCounters, without timeout: Reads the controller's six 32-bit counters.
        
        Args:
            port (int): CAN port, a key of can_dict
        
        Returns:
            list[int]: six counters, the firmware's order
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def _CAN_getErrors(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads the controller's error counters.
        
        Args:
            port (int): CAN port, a key of can_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: [TX error count, RX error count]
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _CAN_getErrors_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _CAN_getErrors, without timeout: Reads the controller's error counters.
        
        Args:
            port (int): CAN port, a key of can_dict
        
        Returns:
            list[int]: [TX error count, RX error count]
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def _CAN_getInterrupts(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads the interrupt words.
        
        Args:
            port (int): CAN port, a key of can_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: [enabled interrupts, interrupt state, error state]
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _CAN_getInterrupts_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _CAN_getInterrupts, without timeout: Reads the interrupt words.
        
        Args:
            port (int): CAN port, a key of can_dict
        
        Returns:
            list[int]: [enabled interrupts, interrupt state, error state]
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def _CAN_getPinMapPort(self, CAN_port: typing.Any) -> list[int]:
        """
        The digital ports the bus's pins lie on, each once.
        """
    def _CAN_setEnableInterrupt(self, port: int, status: bool, timeout: float = 3) -> int:
        """
        Enables or disables the controller's interrupts.
        
        Args:
            port (int): CAN port, a key of can_dict
            status (bool): True to enable
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or the flag not a bool.
            CANPortNotAvaliableError: port is not a key of can_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _CAN_setEnableInterrupt_async(self, port: int, status: bool) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _CAN_setEnableInterrupt, without timeout: Enables or disables the controller's interrupts.
        
        Args:
            port (int): CAN port, a key of can_dict
            status (bool): True to enable
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or the flag not a bool.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def _CAN_setRXRollover(self, port: int, status: bool, timeout: float = 3) -> int:
        """
        Turns receive-buffer rollover on or off.
        
        Args:
            port (int): CAN port, a key of can_dict
            status (bool): True for rollover
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or the flag not a bool.
            CANPortNotAvaliableError: port is not a key of can_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _CAN_setRXRollover_async(self, port: int, status: bool) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _CAN_setRXRollover, without timeout: Turns receive-buffer rollover on or off.
        
        Args:
            port (int): CAN port, a key of can_dict
            status (bool): True for rollover
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or the flag not a bool.
            CANPortNotAvaliableError: port is not a key of can_dict.
        """
    def _CAN_setTXPriority(self, port: int, tx_mode: int, priority_mode: int, timeout: float = 3) -> int:
        """
        Would set a TX buffer's priority; its mode check is reached with one argument too many, so every call with a good port ends in TypeError and nothing is sent.
        
        Args:
            port (int): CAN port, a key of can_dict
            tx_mode (int): TX buffer 0..2
            priority_mode (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
            TypeError: any call with a good port (the mode check's argument count).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _CAN_setTXPriority_async(self, port: int, tx_mode: int, priority_mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _CAN_setTXPriority, without timeout: Would set a TX buffer's priority; its mode check is reached with one argument too many, so every call with a good port ends in TypeError and nothing is sent.
        
        Args:
            port (int): CAN port, a key of can_dict
            tx_mode (int): TX buffer 0..2
            priority_mode (int): 0..3
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            CANPortNotAvaliableError: port is not a key of can_dict.
            TypeError: any call with a good port (the mode check's argument count).
        """
    def _canFrameQueueSize(self) -> int:
        """
        Frames waiting in the frame queue.
        """
    def _canGateOpen(self) -> bool:
        """
        Whether the stream thread may pass its gate.
        """
    def _checkCANPinState_(self, port: int, allow_state: list[str], timeout: float = 3) -> None:
        """
        Reads the modes of the digital ports the bus's pins lie on and tests every pin of the bus against each port's modes.
        
        Args:
            port (int): CAN port, a key of can_dict
            allow_state (list[str]): mode names that count as free, e.g. ['Idle']
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            None: nothing; raises on a busy pin
        
        Raises, before anything is sent:
            CANPortNotAvaliableError: a pin in a mode not in allow_state (after the read).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _checkCANPinState_async(self, port: int, allow_state: list[str]) -> collections.abc.Coroutine[typing.Any, typing.Any, None]:
        """
        Awaitable _checkCANPinState_, without timeout: Reads the modes of the digital ports the bus's pins lie on and tests every pin of the bus against each port's modes.
        
        Args:
            port (int): CAN port, a key of can_dict
            allow_state (list[str]): mode names that count as free, e.g. ['Idle']
        
        Returns:
            None: nothing; raises on a busy pin
        
        Raises, before anything is sent:
            CANPortNotAvaliableError: a pin in a mode not in allow_state (after the read).
        """
    def _checkCANPort(self, port: typing.Any) -> bool:
        ...
    @property
    def can_killed(self) -> bool:
        """
        True once the stream thread ends.
        """
    @property
    def can_open_flag(self) -> bool:
        """
        True from a first open to the matching close.
        """
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
class MCX514Module(MCX514Driver):
    """
    Axes of the MCX514 pulse chip: configuration, moves, reference search, capture, servo, interpolation and the motion ini file.  Composite calls run every step and return the greatest status from 0.
    """
    @staticmethod
    def _checkMCX514AccelerationMode(status: typing.Any) -> None:
        ...
    @staticmethod
    def _checkMCX514Axis(axis: typing.Any, mode: bool = True) -> None:
        ...
    @staticmethod
    def _checkMCX514BreakPointMode(status: typing.Any) -> None:
        ...
    @staticmethod
    def _checkMCX514CaptureMode(status: typing.Any) -> None:
        ...
    @staticmethod
    def _checkMCX514CaptureType(status: typing.Any) -> None:
        ...
    @staticmethod
    def _checkMCX514Direction(direction: typing.Any) -> None:
        ...
    @staticmethod
    def _checkMCX514Enable(status: typing.Any) -> None:
        ...
    @staticmethod
    def _checkMCX514OperationMode(status: typing.Any) -> None:
        ...
    @staticmethod
    def _checkMCX514Polarity(status: typing.Any) -> None:
        ...
    @staticmethod
    def _checkMCX514SearchDirection(direction: typing.Any) -> None:
        ...
    @staticmethod
    def _checkMCX514SearchType(search_type: typing.Any) -> None:
        ...
    @staticmethod
    def _checkMCX514StepperOutput(status: typing.Any) -> None:
        ...
    @staticmethod
    def _checkMCX514StopMode(mode: typing.Any) -> None:
        ...
    def Motion_cfg2AxisLinearInterpo(self, port: int, axis1: int, dest_posi1: int, axis2: int, dest_posi2: int, speed: int = 10000, accel: int = 100000, decel: int = 100000, timeout: float = 3) -> int:
        """
        Configures a two-axis straight line.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis1 (int): 0..3
            dest_posi1 (int): counts
            axis2 (int): 0..3
            dest_posi2 (int): counts
            speed (int): vector speed, counts/s (default 10000)
            accel (int): counts/s2 (default 100000)
            decel (int): counts/s2 (default 100000)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, each axis as usual)
            InputTypeNotCorrectError: a destination, speed, accel or decel that is not an int.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfg2AxisLinearInterpo_async(self, port: int, axis1: int, dest_posi1: int, axis2: int, dest_posi2: int, speed: int = 10000, accel: int = 100000, decel: int = 100000) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfg2AxisLinearInterpo, without timeout: Configures a two-axis straight line.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis1 (int): 0..3
            dest_posi1 (int): counts
            axis2 (int): 0..3
            dest_posi2 (int): counts
            speed (int): vector speed, counts/s (default 10000)
            accel (int): counts/s2 (default 100000)
            decel (int): counts/s2 (default 100000)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, each axis as usual)
            InputTypeNotCorrectError: a destination, speed, accel or decel that is not an int.
        """
    def Motion_cfg3AxisLinearInterpo(self, port: int, axis1: int, dest_posi1: int, axis2: int, dest_posi2: int, axis3: int, dest_posi3: int, speed: int = 10000, accel: int = 100000, decel: int = 100000, timeout: float = 3) -> int:
        """
        Configures a three-axis straight line.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis1 (int): 0..3
            dest_posi1 (int): counts
            axis2 (int): 0..3
            dest_posi2 (int): counts
            axis3 (int): 0..3
            dest_posi3 (int): counts
            speed (int): vector speed, counts/s (default 10000)
            accel (int): counts/s2 (default 100000)
            decel (int): counts/s2 (default 100000)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, each axis as usual)
            InputTypeNotCorrectError: a destination, speed, accel or decel that is not an int.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfg3AxisLinearInterpo_async(self, port: int, axis1: int, dest_posi1: int, axis2: int, dest_posi2: int, axis3: int, dest_posi3: int, speed: int = 10000, accel: int = 100000, decel: int = 100000) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfg3AxisLinearInterpo, without timeout: Configures a three-axis straight line.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis1 (int): 0..3
            dest_posi1 (int): counts
            axis2 (int): 0..3
            dest_posi2 (int): counts
            axis3 (int): 0..3
            dest_posi3 (int): counts
            speed (int): vector speed, counts/s (default 10000)
            accel (int): counts/s2 (default 100000)
            decel (int): counts/s2 (default 100000)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, each axis as usual)
            InputTypeNotCorrectError: a destination, speed, accel or decel that is not an int.
        """
    def Motion_cfg4AxisLinearInterpo(self, port: int, axis1: int, dest_posi1: int, axis2: int, dest_posi2: int, axis3: int, dest_posi3: int, axis4: int, dest_posi4: int, speed: int, accel: int = 100000, decel: int = 100000, timeout: float = 3) -> int:
        """
        Configures a four-axis straight line.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis1 (int): 0..3
            dest_posi1 (int): counts
            axis2 (int): 0..3
            dest_posi2 (int): counts
            axis3 (int): 0..3
            dest_posi3 (int): counts
            axis4 (int): 0..3
            dest_posi4 (int): counts
            speed (int): vector speed, counts/s (no default)
            accel (int): counts/s2 (default 100000)
            decel (int): counts/s2 (default 100000)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, each axis as usual)
            InputTypeNotCorrectError: a destination, speed, accel or decel that is not an int.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfg4AxisLinearInterpo_async(self, port: int, axis1: int, dest_posi1: int, axis2: int, dest_posi2: int, axis3: int, dest_posi3: int, axis4: int, dest_posi4: int, speed: int, accel: int = 100000, decel: int = 100000) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfg4AxisLinearInterpo, without timeout: Configures a four-axis straight line.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis1 (int): 0..3
            dest_posi1 (int): counts
            axis2 (int): 0..3
            dest_posi2 (int): counts
            axis3 (int): 0..3
            dest_posi3 (int): counts
            axis4 (int): 0..3
            dest_posi4 (int): counts
            speed (int): vector speed, counts/s (no default)
            accel (int): counts/s2 (default 100000)
            decel (int): counts/s2 (default 100000)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, each axis as usual)
            InputTypeNotCorrectError: a destination, speed, accel or decel that is not an int.
        """
    def Motion_cfgAlarm(self, port: int, axis: int, en_alarm: int, alarm_polarity: int, timeout: float = 3) -> int:
        """
        Enables the servo alarm input and sets its polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_alarm (int): 0 or 1
            alarm_polarity (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError, MotionPolarityError: not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgAlarm_async(self, port: int, axis: int, en_alarm: int, alarm_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgAlarm, without timeout: Enables the servo alarm input and sets its polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_alarm (int): 0 or 1
            alarm_polarity (int): 0 or 1
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError, MotionPolarityError: not 0 or 1.
        """
    def Motion_cfgAxis(self, port: int, axis: int, stepper_output: int, axis_dir: int, encoder_dir: int, servo_on_polarity: int, timeout: float = 3) -> int:
        """
        Sets the pulse output form, directions and servo-on polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            stepper_output (int): 0 step/dir (one pulse), 1 CW/CCW (two pulse)
            axis_dir (int): 0 or 1: inverse motion direction
            encoder_dir (int): 0 or 1: inverse encoder direction
            servo_on_polarity (int): 0 active low, 1 active high
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionStepperOutputError, MotionDirectionError, MotionPolarityError: a value that is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgAxisMove(self, port: int, axis: int, mode: int, target_posi: int = 0, velo: int = 10000, accel: int = 100000, decel: int = 100000, timeout: float = 3) -> int:
        """
        Sets target, speed and acceleration of an axis's next move.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            mode (int): 0 absolute, 1 relative, 2 velocity
            target_posi (int): counts (default 0)
            velo (int): counts/s (default 10000)
            accel (int): counts/s2 (default 100000)
            decel (int): counts/s2 (default 100000)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionOperationModeError: mode is not 0..2.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgAxisMove_async(self, port: int, axis: int, mode: int, target_posi: int = 0, velo: int = 10000, accel: int = 100000, decel: int = 100000) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgAxisMove, without timeout: Sets target, speed and acceleration of an axis's next move.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            mode (int): 0 absolute, 1 relative, 2 velocity
            target_posi (int): counts (default 0)
            velo (int): counts/s (default 10000)
            accel (int): counts/s2 (default 100000)
            decel (int): counts/s2 (default 100000)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionOperationModeError: mode is not 0..2.
        """
    def Motion_cfgAxis_async(self, port: int, axis: int, stepper_output: int, axis_dir: int, encoder_dir: int, servo_on_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgAxis, without timeout: Sets the pulse output form, directions and servo-on polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            stepper_output (int): 0 step/dir (one pulse), 1 CW/CCW (two pulse)
            axis_dir (int): 0 or 1: inverse motion direction
            encoder_dir (int): 0 or 1: inverse encoder direction
            servo_on_polarity (int): 0 active low, 1 active high
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionStepperOutputError, MotionDirectionError, MotionPolarityError: a value that is not 0 or 1.
        """
    def Motion_cfgBreakPoint(self, port: int, axis: int, mode: int, breakpoint_polarity: int, start_posi: int, pulse_width: int, pulse_period: int, pulse_number: int, timeout: float = 3) -> int:
        """
        Configures the break point pulse train (SYNC0).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            mode (int): 0 absolute, 1 relative start position
            breakpoint_polarity (int): 0 or 1
            start_posi (int): counts
            pulse_width (int): 16-bit
            pulse_period (int): 16-bit
            pulse_number (int): 16-bit
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionBreakPointModeError: mode is not 0 or 1.
            MotionPolarityError: breakpoint_polarity is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgBreakPoint_async(self, port: int, axis: int, mode: int, breakpoint_polarity: int, start_posi: int, pulse_width: int, pulse_period: int, pulse_number: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgBreakPoint, without timeout: Configures the break point pulse train (SYNC0).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            mode (int): 0 absolute, 1 relative start position
            breakpoint_polarity (int): 0 or 1
            start_posi (int): counts
            pulse_width (int): 16-bit
            pulse_period (int): 16-bit
            pulse_number (int): 16-bit
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionBreakPointModeError: mode is not 0 or 1.
            MotionPolarityError: breakpoint_polarity is not 0 or 1.
        """
    def Motion_cfgCapture(self, port: int, axis: int, capture_type: int, mode: int, timeout: float = 3) -> int:
        """
        Sets what SYNC3 captures on the input edge.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            capture_type (int): 0 rising, 1 falling edge
            mode (int): 0 logical, 1 encoder position
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionCaptureTypeError, MotionCaptureModeError: not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgCapture_async(self, port: int, axis: int, capture_type: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgCapture, without timeout: Sets what SYNC3 captures on the input edge.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            capture_type (int): 0 rising, 1 falling edge
            mode (int): 0 logical, 1 encoder position
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionCaptureTypeError, MotionCaptureModeError: not 0 or 1.
        """
    def Motion_cfgCircularInterpo(self, port: int, x_axis: int, y_axis: int, center_point_x: int, center_point_y: int, finish_point_x: int, finish_point_y: int, dir: int, speed: int = 10000, accel: int = 100000, decel: int = 100000, timeout: float = 3) -> int:
        """
        Configures a circular arc on two axes.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            x_axis (int): 0..3
            y_axis (int): 0..3
            center_point_x (int): relative counts
            center_point_y (int): relative counts
            finish_point_x (int): relative counts
            finish_point_y (int): relative counts
            dir (int): 0 clockwise, 1 counter-clockwise
            speed (int): vector speed, counts/s (default 10000)
            accel (int): counts/s2 (default 100000)
            decel (int): counts/s2 (default 100000)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axes as usual)
            MotionDirectionError: dir is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgCircularInterpo_async(self, port: int, x_axis: int, y_axis: int, center_point_x: int, center_point_y: int, finish_point_x: int, finish_point_y: int, dir: int, speed: int = 10000, accel: int = 100000, decel: int = 100000) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgCircularInterpo, without timeout: Configures a circular arc on two axes.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            x_axis (int): 0..3
            y_axis (int): 0..3
            center_point_x (int): relative counts
            center_point_y (int): relative counts
            finish_point_x (int): relative counts
            finish_point_y (int): relative counts
            dir (int): 0 clockwise, 1 counter-clockwise
            speed (int): vector speed, counts/s (default 10000)
            accel (int): counts/s2 (default 100000)
            decel (int): counts/s2 (default 100000)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axes as usual)
            MotionDirectionError: dir is not 0 or 1.
        """
    def Motion_cfgEncoder(self, port: int, axis: int, encoder_z_polarity: int, timeout: float = 3) -> int:
        """
        Sets the encoder Z polarity (WR2 bit 4: the blocking form writes its inverse).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            encoder_z_polarity (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionPolarityError: not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgEncoder_async(self, port: int, axis: int, encoder_z_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgEncoder, without timeout: Sets the encoder Z polarity (WR2 bit 4: the blocking form writes its inverse).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            encoder_z_polarity (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionPolarityError: not 0 or 1.
        """
    def Motion_cfgFindRef(self, port: int, axis: int, search_type: int, search_dir: int, search_velo: int = 10000, search_accle: int = 100000, approach_velo_percent: int | float = 20, en_reset_posi: int = 0, offset_posi: int = 0, timeout: float = 3) -> int:
        """
        Configures the automatic reference search.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            search_type (int): 0 home, 1 index, 2 limit
            search_dir (int): 0 or 1
            search_velo (int): counts/s (default 10000)
            search_accle (int): counts/s2 (default 100000)
            approach_velo_percent (int | float): percent of search_velo (default 20)
            en_reset_posi (int): 0 or 1 (default 0)
            offset_posi (int): counts (default 0)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionSearchTypeError: search_type not 0..2 or search_dir not 0 or 1.
            MotionEnableError: en_reset_posi not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgFindRef_async(self, port: int, axis: int, search_type: int, search_dir: int, search_velo: int = 10000, search_accle: int = 100000, approach_velo_percent: int | float = 20, en_reset_posi: int = 0, offset_posi: int = 0) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgFindRef, without timeout: Configures the automatic reference search.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            search_type (int): 0 home, 1 index, 2 limit
            search_dir (int): 0 or 1
            search_velo (int): counts/s (default 10000)
            search_accle (int): counts/s2 (default 100000)
            approach_velo_percent (int | float): percent of search_velo (default 20)
            en_reset_posi (int): 0 or 1 (default 0)
            offset_posi (int): counts (default 0)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionSearchTypeError: search_type not 0..2 or search_dir not 0 or 1.
            MotionEnableError: en_reset_posi not 0 or 1.
        """
    def Motion_cfgHelicalInterpo(self, port: int, center_point_x: int, center_point_y: int, finish_point_x: int, finish_point_y: int, en_axis3: int, pitch_axis3: int, en_axis4: int, pitch_axis4: int, rotation_number: int, speed: int, dir: int, calculation_timeout: int, timeout: float = 3) -> int:
        """
        Configures a helix on axes 0 and 1 (2 and 3 following) and waits for the chip's calculation.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            center_point_x (int): counts
            center_point_y (int): counts
            finish_point_x (int): counts
            finish_point_y (int): counts
            en_axis3 (int): 0 or 1
            pitch_axis3 (int): counts
            en_axis4 (int): 0 or 1
            pitch_axis4 (int): counts
            rotation_number (int): turns
            speed (int): counts/s
            dir (int): 0 clockwise, 1 counter-clockwise
            calculation_timeout (int): milliseconds; the wait ends then without an error
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port as usual)
            MotionEnableError: en_axis3 or en_axis4 not 0 or 1.
            MotionDirectionError: dir is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgHelicalInterpo_async(self, port: int, center_point_x: int, center_point_y: int, finish_point_x: int, finish_point_y: int, en_axis3: int, pitch_axis3: int, en_axis4: int, pitch_axis4: int, rotation_number: int, speed: int, dir: int, calculation_timeout: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgHelicalInterpo, without timeout: Configures a helix on axes 0 and 1 (2 and 3 following) and waits for the chip's calculation.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            center_point_x (int): counts
            center_point_y (int): counts
            finish_point_x (int): counts
            finish_point_y (int): counts
            en_axis3 (int): 0 or 1
            pitch_axis3 (int): counts
            en_axis4 (int): 0 or 1
            pitch_axis4 (int): counts
            rotation_number (int): turns
            speed (int): counts/s
            dir (int): 0 clockwise, 1 counter-clockwise
            calculation_timeout (int): milliseconds; the wait ends then without an error
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port as usual)
            MotionEnableError: en_axis3 or en_axis4 not 0 or 1.
            MotionDirectionError: dir is not 0 or 1.
        """
    def Motion_cfgHome(self, port: int, axis: int, en_home: int, home_polarity: int, timeout: float = 3) -> int:
        """
        Enables the home input and sets its polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_home (int): 0 or 1
            home_polarity (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError, MotionPolarityError: not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgHome_async(self, port: int, axis: int, en_home: int, home_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgHome, without timeout: Enables the home input and sets its polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_home (int): 0 or 1
            home_polarity (int): 0 or 1
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError, MotionPolarityError: not 0 or 1.
        """
    def Motion_cfgInposi(self, port: int, axis: int, en_inposi: int, inposi_polarity: int, timeout: float = 3) -> int:
        """
        Enables the in-position input and sets its polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_inposi (int): 0 or 1
            inposi_polarity (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError, MotionPolarityError: not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgInposi_async(self, port: int, axis: int, en_inposi: int, inposi_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgInposi, without timeout: Enables the in-position input and sets its polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_inposi (int): 0 or 1
            inposi_polarity (int): 0 or 1
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError, MotionPolarityError: not 0 or 1.
        """
    def Motion_cfgJerkAndAccelMode(self, port: int, axis: int, jerk: int, accel_mode: int, timeout: float = 3) -> int:
        """
        Stores jerk and acceleration mode; nothing is sent.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            jerk (int): S-curve jerk
            accel_mode (int): 0 trapezoidal, 1 or 2 S curve
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionAccelerationModeError: not 0..2.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgJerkAndAccelMode_async(self, port: int, axis: int, jerk: int, accel_mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgJerkAndAccelMode, without timeout: Stores jerk and acceleration mode; nothing is sent.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            jerk (int): S-curve jerk
            accel_mode (int): 0 trapezoidal, 1 or 2 S curve
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionAccelerationModeError: not 0..2.
        """
    def Motion_cfgLimit(self, port: int, axis: int, en_forward: int, en_reverse: int, limit_polarity: int, timeout: float = 3) -> int:
        """
        Enables the hardware limits and sets their polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_forward (int): 0 or 1
            en_reverse (int): 0 or 1
            limit_polarity (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError, MotionPolarityError: not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgLimit_async(self, port: int, axis: int, en_forward: int, en_reverse: int, limit_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgLimit, without timeout: Enables the hardware limits and sets their polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_forward (int): 0 or 1
            en_reverse (int): 0 or 1
            limit_polarity (int): 0 or 1
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError, MotionPolarityError: not 0 or 1.
        """
    def Motion_checkRef(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Whether the search is over (RR0).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0 while searching, 1 when found
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_checkRef_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_checkRef, without timeout: Whether the search is over (RR0).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
        
        Returns:
            int: 0 while searching, 1 when found
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_close(self, port: int, timeout: float = 3) -> int:
        """
        Checks the port; nothing is sent.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_close_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_close, without timeout: Checks the port; nothing is sent.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
        """
    def Motion_enableBreakPoint(self, port: int, axis: int, en_break: int, timeout: float = 3) -> int:
        """
        Enables or disables the break point (SYNC0).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_break (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError: not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_enableBreakPoint_async(self, port: int, axis: int, en_break: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_enableBreakPoint, without timeout: Enables or disables the break point (SYNC0).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_break (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError: not 0 or 1.
        """
    def Motion_enableCapture(self, port: int, axis: int, en_capture: int, timeout: float = 3) -> int:
        """
        Enables or disables the capture (SYNC3).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_capture (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError: not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_enableCapture_async(self, port: int, axis: int, en_capture: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_enableCapture, without timeout: Enables or disables the capture (SYNC3).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            en_capture (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionEnableError: not 0 or 1.
        """
    def Motion_enableServoOff(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Switches the servo off, then writes the position back.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_enableServoOff_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_enableServoOff, without timeout: Switches the servo off, then writes the position back.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_enableServoOn(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Switches the servo on, then writes the position back.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_enableServoOn_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_enableServoOn, without timeout: Switches the servo on, then writes the position back.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_findRef(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Starts the reference search.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_findRef_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_findRef, without timeout: Starts the reference search.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_getEncoderPosi(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads the encoder (real) position counter; no check.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: signed 32-bit count
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_getEncoderPosi_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_getEncoderPosi, without timeout: Reads the encoder (real) position counter; no check.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
        
        Returns:
            int: signed 32-bit count
        """
    def Motion_getHomeStatus(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        The home input (RR3 bit 1) after the forward polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0 or 1
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_getHomeStatus_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_getHomeStatus, without timeout: The home input (RR3 bit 1) after the forward polarity.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
        
        Returns:
            int: 0 or 1
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_getLimitStatus(self, port: int, axis: int, timeout: float = 3) -> list[int]:
        """
        The limit inputs (RR3 bits 7 and 8).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: [forward hit, reverse hit]
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_getLimitStatus_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable Motion_getLimitStatus, without timeout: The limit inputs (RR3 bits 7 and 8).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
        
        Returns:
            list[int]: [forward hit, reverse hit]
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_getLogicalPosi(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Reads the logical position counter.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: signed 32-bit count
        
        Raises, before anything is sent:
            MotionAxisError: axis is not 0..3 (port not checked).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_getLogicalPosi_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_getLogicalPosi, without timeout: Reads the logical position counter.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
        
        Returns:
            int: signed 32-bit count
        
        Raises, before anything is sent:
            MotionAxisError: axis is not 0..3 (port not checked).
        """
    def Motion_getMoveStatus(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Whether the axis's move is over (RR0).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 1 when the move is complete, 0 while driving
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_getMoveStatus_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_getMoveStatus, without timeout: Whether the axis's move is over (RR0).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
        
        Returns:
            int: 1 when the move is complete, 0 while driving
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_loadCfgFile(self, timeout: float = 3) -> int:
        """
        Reads the four axes' settings and sends them to motion port 0, axis by axis.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the first axis's non-zero status
        
        Raises, before anything is sent:
            AttributeError: no file opened yet.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_loadCfgFile_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_loadCfgFile, without timeout: Reads the four axes' settings and sends them to motion port 0, axis by axis.
        
        Returns:
            int: 0, or the first axis's non-zero status
        
        Raises, before anything is sent:
            AttributeError: no file opened yet.
        """
    def Motion_open(self, port: int, timeout: float = 3) -> int:
        """
        Sets the PIO signals of all four axes (axis byte 15).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_openCfgFile(self, filename: str = 'test.ini') -> int:
        """
        Chooses an existing .ini file for save and load.
        
        Args:
            filename (str): an existing file ending in .ini (default 'test.ini')
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            IniFileNotFoundError: no such file.
            IniFileExtensionNameError: the name does not end in .ini.
        """
    def Motion_openCfgFile_async(self, filename: str = 'test.ini') -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_openCfgFile, without timeout: Chooses an existing .ini file for save and load.
        
        Args:
            filename (str): an existing file ending in .ini (default 'test.ini')
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            IniFileNotFoundError: no such file.
            IniFileExtensionNameError: the name does not end in .ini.
        """
    def Motion_open_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_open, without timeout: Sets the PIO signals of all four axes (axis byte 15).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
        """
    def Motion_overrideAxisAccel(self, port: int, axis: int, new_accel: int, new_decel: int, timeout: float = 3) -> int:
        """
        Changes acceleration and deceleration.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            new_accel (int): counts/s2
            new_decel (int): counts/s2
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_overrideAxisAccel_async(self, port: int, axis: int, new_accel: int, new_decel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_overrideAxisAccel, without timeout: Changes acceleration and deceleration.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            new_accel (int): counts/s2
            new_decel (int): counts/s2
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_overrideAxisPosi(self, port: int, axis: int, new_position: int, timeout: float = 3) -> int:
        """
        Changes the target position.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            new_position (int): counts
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_overrideAxisPosi_async(self, port: int, axis: int, new_position: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_overrideAxisPosi, without timeout: Changes the target position.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            new_position (int): counts
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_overrideAxisVelocity(self, port: int, axis: int, new_velo: int, timeout: float = 3) -> int:
        """
        Changes the speed; in velocity mode a change of sign reverses through a stop.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            new_velo (int): counts/s, signed
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_overrideAxisVelocity_async(self, port: int, axis: int, new_velo: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_overrideAxisVelocity, without timeout: Changes the speed; in velocity mode a change of sign reverses through a stop.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            new_velo (int): counts/s, signed
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_readCapturePoint(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        The captured position (multipurpose register 3).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: signed 32-bit count
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_readCapturePoint_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_readCapturePoint, without timeout: The captured position (multipurpose register 3).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
        
        Returns:
            int: signed 32-bit count
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_rstEncoderPosi(self, port: int, axis: int, encoder_posi: int = 0, timeout: float = 3) -> int:
        """
        Sets both position counters.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            encoder_posi (int): counts (default 0)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_rstEncoderPosi_async(self, port: int, axis: int, encoder_posi: int = 0) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_rstEncoderPosi, without timeout: Sets both position counters.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            encoder_posi (int): counts (default 0)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_saveCfgFile(self) -> int:
        """
        Writes the four axes' settings to the file.
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            AttributeError: no file opened yet.
        """
    def Motion_saveCfgFile_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_saveCfgFile, without timeout: Writes the four axes' settings to the file.
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            AttributeError: no file opened yet.
        """
    def Motion_startCircularInterpo(self, port: int, timeout: float = 3) -> int:
        """
        Starts the configured arc.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_startCircularInterpo_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_startCircularInterpo, without timeout: Starts the configured arc.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
        """
    def Motion_startHelicalInterpo(self, port: int, timeout: float = 3) -> int:
        """
        Writes the stored helix again and starts it.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_startHelicalInterpo_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_startHelicalInterpo, without timeout: Writes the stored helix again and starts it.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
        """
    def Motion_startLinearInterpo(self, port: int, timeout: float = 3) -> int:
        """
        Starts the configured line (two axes unless set).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_startLinearInterpo_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_startLinearInterpo, without timeout: Starts the configured line (two axes unless set).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
        """
    def Motion_startMultiAxisMove(self, port: int, axis_list: list[int], timeout: float = 3) -> int:
        """
        Writes each listed axis's move and holds its start; the held start's release then raises AttributeError (no axis check of that name in this version).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis_list (list[int]): axes 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: never returns normally
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_startMultiAxisMove_async(self, port: int, axis_list: list[int]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_startMultiAxisMove, without timeout: Writes each listed axis's move and holds its start; the held start's release then raises AttributeError (no axis check of that name in this version).
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis_list (list[int]): axes 0..3
        
        Returns:
            int: never returns normally
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_startSingleAxisMove(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Starts the configured move of one axis.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_startSingleAxisMove_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_startSingleAxisMove, without timeout: Starts the configured move of one axis.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or axis is not an int.
            MotionPortNotAvaliable: port is not a key of motion_dict.
            MotionAxisError: axis is not 0..3.
        """
    def Motion_stop(self, port: int, axis: int, mode: int, timeout: float = 3) -> int:
        """
        Stops an axis: 0 decelerating, 1 at once.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            mode (int): 0 decelerate, 1 instant
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionStopModeError: mode is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_stop_async(self, port: int, axis: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_stop, without timeout: Stops an axis: 0 decelerating, 1 at once.
        
        Args:
            port (int): motion port, a key of motion_dict (a slot from 1 on Trellis)
            axis (int): 0..3
            mode (int): 0 decelerate, 1 instant
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            MotionStopModeError: mode is not 0 or 1.
        """
    def _Motion_enableServoOn(self, port: int, axis: int, en_servo_on: int, timeout: float = 3) -> int:
        """
        The servo-on output, then the position written back.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            en_servo_on (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_enableServoOn_async(self, port: int, axis: int, en_servo_on: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_enableServoOn, without timeout: The servo-on output, then the position written back.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            en_servo_on (int): 0 or 1
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_sendAllConfiguration(self, port: int, axis: int, timeout: float = 3) -> int:
        """
        Sends an axis's stored settings to the chip.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_sendAllConfiguration_async(self, port: int, axis: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_sendAllConfiguration, without timeout: Sends an axis's stored settings to the chip.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_setAlarmLimitEnable(self, port: int, axis: int, alarm_enable: int, timeout: float = 3) -> int:
        """
        WR2 bit 9.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            alarm_enable (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setAlarmLimitEnable_async(self, port: int, axis: int, alarm_enable: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setAlarmLimitEnable, without timeout: WR2 bit 9.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            alarm_enable (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_setAlarmPolarity(self, port: int, axis: int, alarm_polarity: int, timeout: float = 3) -> int:
        """
        WR2 bit 8.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            alarm_polarity (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setAlarmPolarity_async(self, port: int, axis: int, alarm_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setAlarmPolarity, without timeout: WR2 bit 8.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            alarm_polarity (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_setAutoHome1(self, port: int, axis: int, search_type: int, initial_search_direction: int, final_approach_direction: int, approach_velocity_percent: int | float, offset_position: int, timeout: float = 3) -> int:
        """
        Home search mode word 1.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            search_type (int): 0, 1 or 2
            initial_search_direction (int): 0 or 1
            final_approach_direction (int): 0 or 1
            approach_velocity_percent (int | float): percent
            offset_position (int): counts
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setAutoHome1_async(self, port: int, axis: int, search_type: int, initial_search_direction: int, final_approach_direction: int, approach_velocity_percent: int | float, offset_position: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setAutoHome1, without timeout: Home search mode word 1.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            search_type (int): 0, 1 or 2
            initial_search_direction (int): 0 or 1
            final_approach_direction (int): 0 or 1
            approach_velocity_percent (int | float): percent
            offset_position (int): counts
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_setAutoHome2(self, port: int, axis: int, reset_position_enable: int, timeout: float = 3) -> int:
        """
        Home search mode word 2.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            reset_position_enable (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setAutoHome2_async(self, port: int, axis: int, reset_position_enable: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setAutoHome2, without timeout: Home search mode word 2.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            reset_position_enable (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        """
    def _Motion_setAxisModeAndDirection(self, port: int, axis: int, stepper_output: int, axis_direction: int, timeout: float = 3) -> int:
        """
        WR3: pulse form and direction levels; no check.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            stepper_output (int): 0 step/dir (one pulse), 1 CW/CCW (two pulse)
            axis_direction (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setAxisModeAndDirection_async(self, port: int, axis: int, stepper_output: int, axis_direction: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setAxisModeAndDirection, without timeout: WR3: pulse form and direction levels; no check.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            stepper_output (int): 0 step/dir (one pulse), 1 CW/CCW (two pulse)
            axis_direction (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        """
    def _Motion_setEncoderDirection(self, port: int, axis: int, encoder_direction: int, timeout: float = 3) -> int:
        """
        WR3 bit 11.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            encoder_direction (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setEncoderDirection_async(self, port: int, axis: int, encoder_direction: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setEncoderDirection, without timeout: WR3 bit 11.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            encoder_direction (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_setHomeLimitEnable(self, port: int, axis: int, home_enable: int, timeout: float = 3) -> int:
        """
        WR2 bit 3.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            home_enable (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setHomeLimitEnable_async(self, port: int, axis: int, home_enable: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setHomeLimitEnable, without timeout: WR2 bit 3.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            home_enable (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_setHomePolarity(self, port: int, axis: int, home_polarity: int, timeout: float = 3) -> int:
        """
        WR2 bit 2.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            home_polarity (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setHomePolarity_async(self, port: int, axis: int, home_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setHomePolarity, without timeout: WR2 bit 2.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            home_polarity (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_setInpositionLimitEnable(self, port: int, axis: int, inposition_enable: int, timeout: float = 3) -> int:
        """
        WR2 bit 7.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            inposition_enable (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setInpositionLimitEnable_async(self, port: int, axis: int, inposition_enable: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setInpositionLimitEnable, without timeout: WR2 bit 7.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            inposition_enable (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_setInpositionPolarity(self, port: int, axis: int, inposition_polarity: int, timeout: float = 3) -> int:
        """
        WR2 bit 6.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            inposition_polarity (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setInpositionPolarity_async(self, port: int, axis: int, inposition_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setInpositionPolarity, without timeout: WR2 bit 6.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            inposition_polarity (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_setInstantLimitStop(self, port: int, axis: int, stop: int, timeout: float = 3) -> int:
        """
        WR2 bit 12.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            stop (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setInstantLimitStop_async(self, port: int, axis: int, stop: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setInstantLimitStop, without timeout: WR2 bit 12.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            stop (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_setLimitEnable(self, port: int, axis: int, forward_enable: int, reverse_enable: int, timeout: float = 3) -> int:
        """
        WR2 bit 11 to forward OR reverse, bit 12 to 0.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            forward_enable (int): 0 or 1
            reverse_enable (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLimitEnable_async(self, port: int, axis: int, forward_enable: int, reverse_enable: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLimitEnable, without timeout: WR2 bit 11 to forward OR reverse, bit 12 to 0.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            forward_enable (int): 0 or 1
            reverse_enable (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_setLimitPolarity(self, port: int, axis: int, limit_polarity: int, timeout: float = 3) -> int:
        """
        WR2 bit 10.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            limit_polarity (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLimitPolarity_async(self, port: int, axis: int, limit_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLimitPolarity, without timeout: WR2 bit 10.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            limit_polarity (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            (port, axis as usual)
        """
    def _Motion_writeAcceleration(self, port: int, axis: int, acceleration: int = 100000, deceleration: int = 100000, timeout: float = 3) -> int:
        """
        Acceleration, deceleration and the WR3 shape.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            acceleration (int): counts/s2 (default 100000)
            deceleration (int): counts/s2 (default 100000)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeAcceleration_async(self, port: int, axis: int, acceleration: int = 100000, deceleration: int = 100000) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeAcceleration, without timeout: Acceleration, deceleration and the WR3 shape.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            acceleration (int): counts/s2 (default 100000)
            deceleration (int): counts/s2 (default 100000)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        """
    def _Motion_writeDriveMode(self, port: int, axis: int, operation_mode: int, velocity: int, timeout: float = 3) -> int:
        """
        Starts the drive of a mode.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            operation_mode (int): 0, 1 or 2
            velocity (int): counts/s
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeDriveMode_async(self, port: int, axis: int, operation_mode: int, velocity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeDriveMode, without timeout: Starts the drive of a mode.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            operation_mode (int): 0, 1 or 2
            velocity (int): counts/s
        
        Returns:
            int: 0, or the negative code of the firmware's status
        """
    def _Motion_writeHelicalInterpolation(self, port: int, finish_point_axis1: int, finish_point_axis2: int, center_point_axis1: int, center_point_axis2: int, enable_axis3: int, pitch_axis3: int, enable_axis4: int, pitch_axis4: int, rotation_number: int, circular_speed: int, circular_direction: int, timeout: float = 3) -> int:
        """
        Writes a helix's registers.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            finish_point_axis1 (int): counts
            finish_point_axis2 (int): counts
            center_point_axis1 (int): counts
            center_point_axis2 (int): counts
            enable_axis3 (int): 0 or 1
            pitch_axis3 (int): counts
            enable_axis4 (int): 0 or 1
            pitch_axis4 (int): counts
            rotation_number (int): turns
            circular_speed (int): counts/s
            circular_direction (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeHelicalInterpolation_async(self, port: int, finish_point_axis1: int, finish_point_axis2: int, center_point_axis1: int, center_point_axis2: int, enable_axis3: int, pitch_axis3: int, enable_axis4: int, pitch_axis4: int, rotation_number: int, circular_speed: int, circular_direction: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeHelicalInterpolation, without timeout: Writes a helix's registers.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            finish_point_axis1 (int): counts
            finish_point_axis2 (int): counts
            center_point_axis1 (int): counts
            center_point_axis2 (int): counts
            enable_axis3 (int): 0 or 1
            pitch_axis3 (int): counts
            enable_axis4 (int): 0 or 1
            pitch_axis4 (int): counts
            rotation_number (int): turns
            circular_speed (int): counts/s
            circular_direction (int): 0 or 1
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        """
    def _Motion_writeHomeSpeed(self, port: int, axis: int, approach_velocity_percent: int | float, search_velocity: int, timeout: float = 3) -> int:
        """
        The approach speed: percent of the search speed, at least 1.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            approach_velocity_percent (int | float): percent
            search_velocity (int): counts/s
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeHomeSpeed_async(self, port: int, axis: int, approach_velocity_percent: int | float, search_velocity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeHomeSpeed, without timeout: The approach speed: percent of the search speed, at least 1.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            approach_velocity_percent (int | float): percent
            search_velocity (int): counts/s
        
        Returns:
            int: 0, or the negative code of the firmware's status
        """
    def _Motion_writeOffsetPosition(self, port: int, axis: int, offset_position: int, initial_search_direction: int, timeout: float = 3) -> int:
        """
        The offset, negated for initial direction 0.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            offset_position (int): counts
            initial_search_direction (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeOffsetPosition_async(self, port: int, axis: int, offset_position: int, initial_search_direction: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeOffsetPosition, without timeout: The offset, negated for initial direction 0.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            offset_position (int): counts
            initial_search_direction (int): 0 or 1
        
        Returns:
            int: 0, or the negative code of the firmware's status
        """
    def _Motion_writeTargetPosition(self, port: int, axis: int, target_position: int = 0, timeout: float = 3) -> int:
        """
        The drive's finish point.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            target_position (int): counts (default 0)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeTargetPosition_async(self, port: int, axis: int, target_position: int = 0) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeTargetPosition, without timeout: The drive's finish point.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            target_position (int): counts (default 0)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        """
    def _Motion_writeVelocity(self, port: int, axis: int, velocity: int = 10000, timeout: float = 3) -> int:
        """
        Drive speed and the initial speed of the stored acceleration.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            velocity (int): counts/s (default 10000)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeVelocity_async(self, port: int, axis: int, velocity: int = 10000) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeVelocity, without timeout: Drive speed and the initial speed of the stored acceleration.
        
        Args:
            port (int): motion port as the chip sees it (not translated)
            axis (int): 0..3
            velocity (int): counts/s (default 10000)
        
        Returns:
            int: the greatest status of the steps, from 0: 0 or a positive status
        """
    def _checkMCX514MotionPort(self, port: typing.Any) -> None:
        ...
    @property
    def iniconfig(self) -> typing.Any:
        """
        The settings the module's parser holds, as a configparser.ConfigParser read from its text (a copy: changing it changes nothing here). AttributeError before Motion_openCfgFile.
        """
    @property
    def inifile(self) -> str:
        ...
    @property
    def inimode(self) -> str:
        ...
class Measurement:
    """
    One frame of a digital multimeter decoded: mode, range, display text, the displayed number as a decimal.Decimal, unit and status flags.
    
    Measurement(b): b is the frame, 14 bytes.
    """
    _EXPONENTS: typing.ClassVar[dict] = {'M': 6, 'k': 3, 'm': -3, 'n': -9, 'u': -6}
    _MODE: typing.ClassVar[list] = ['ACV', 'ACmV', 'DCV', 'DCmV', 'Hz', '%', 'OHM', 'CONT', 'DIDOE', 'CAP', '°C', '°F', 'DCuA', 'ACuA', 'DCmA', 'ACmA', 'DCA', 'ACA', 'HFE', 'Live', 'NCV', 'LozV', 'ACA', 'DCA', 'LPF', 'AC/DC', 'LPF', 'AC+DC', 'LPF', 'AC+DC2', 'INRUSH']
    _NCV: typing.ClassVar[list] = ['EF', '-', '--', '---', '----', '-----']
    _OVERLOAD: typing.ClassVar[list] = ['O.L', 'OL.', 'OL', '-.OL', '-O.L', '-OL.', '-OL']
    _UNITS: typing.ClassVar[dict] = {'%': {'0': '%'}, 'AC+DC': {'1': 'A'}, 'AC+DC2': {'1': 'A'}, 'AC/DC': {'0': 'V', '1': 'V', '2': 'V', '3': 'V'}, 'ACA': {'1': 'A'}, 'ACV': {'0': 'V', '1': 'V', '2': 'V', '3': 'V'}, 'ACmA': {'0': 'mA', '1': 'mA'}, 'ACmV': {'0': 'mV'}, 'ACuA': {'0': 'uA', '1': 'uA'}, 'CAP': {'0': 'nF', '1': 'nF', '2': 'uF', '3': 'uF', '4': 'uF', '5': 'mF', '6': 'mF', '7': 'mF'}, 'CONT': {'0': 'Ω'}, 'DCA': {'1': 'A'}, 'DCV': {'0': 'V', '1': 'V', '2': 'V', '3': 'V'}, 'DCmA': {'0': 'mA', '1': 'mA'}, 'DCmV': {'0': 'mV'}, 'DCuA': {'0': 'uA', '1': 'uA'}, 'DIDOE': {'0': 'V'}, 'HFE': {'0': 'B'}, 'Hz': {'0': 'Hz', '1': 'Hz', '2': 'kHz', '3': 'kHz', '4': 'kHz', '5': 'MHz', '6': 'MHz', '7': 'MHz'}, 'LPF': {'0': 'V', '1': 'V', '2': 'V', '3': 'V'}, 'LozV': {'0': 'V', '1': 'V', '2': 'V', '3': 'V'}, 'NCV': {'0': 'NCV'}, 'OHM': {'0': 'Ω', '1': 'kΩ', '2': 'kΩ', '3': 'kΩ', '4': 'MΩ', '5': 'MΩ', '6': 'MΩ'}, '°C': {'0': '°C', '1': '°C'}, '°F': {'0': '°F', '1': '°F'}}
    def __init__(self, b: typing.Any) -> None:
        ...
    def __str__(self) -> str:
        ...
    @property
    def _data(self) -> dict:
        ...
    @property
    def binary(self) -> ...:
        """
        (self) -> typing.Any
        
        The frame as given.
        """
    @property
    def display(self) -> ...:
        """
        (self) -> str
        
        The display text without blanks.
        """
    @property
    def display_decimal(self) -> ...:
        """
        (self) -> decimal.Decimal | decimal.Overflow | int
        
        The displayed number; decimal.Overflow() on overload; the level 0..5 (-1 unknown) in NCV mode.
        """
    @property
    def display_unit(self) -> ...:
        """
        (self) -> str | None
        
        The unit shown, with its prefix.
        """
    @property
    def hasBatteryWarning(self) -> ...:
        """
        (self) -> bool
        
        Low battery.
        """
    @property
    def hasHVWarning(self) -> ...:
        """
        (self) -> bool
        
        High-voltage warning.
        """
    @property
    def isAuto(self) -> ...:
        """
        (self) -> bool
        
        Auto range.
        """
    @property
    def isBarPol(self) -> ...:
        """
        (self) -> bool
        
        Bar polarity.
        """
    @property
    def isDC(self) -> ...:
        """
        (self) -> bool
        
        DC.
        """
    @property
    def isHold(self) -> ...:
        """
        (self) -> bool
        
        Display hold.
        """
    @property
    def isMax(self) -> ...:
        """
        (self) -> bool
        
        Max hold.
        """
    @property
    def isMaxPeak(self) -> ...:
        """
        (self) -> bool
        
        Max peak.
        """
    @property
    def isMin(self) -> ...:
        """
        (self) -> bool
        
        Min hold.
        """
    @property
    def isMinPeak(self) -> ...:
        """
        (self) -> bool
        
        Min peak.
        """
    @property
    def isRel(self) -> ...:
        """
        (self) -> bool
        
        Relative mode.
        """
    @property
    def mode(self) -> ...:
        """
        (self) -> str
        
        The mode's name ("DCV", "OHM", ...).
        """
    @property
    def overload(self) -> ...:
        """
        (self) -> bool
        
        True when the display shows an overload.
        """
    @property
    def progress(self) -> ...:
        """
        (self) -> int
        
        The progress bar, 0..99.
        """
    @property
    def range(self) -> ...:
        """
        (self) -> str
        
        The range digit, one character.
        """
    @property
    def unit(self) -> ...:
        """
        (self) -> str | None
        
        The unit shown, with its prefix (display_unit).
        """
    @property
    def value(self) -> ...:
        """
        (self) -> decimal.Decimal | decimal.Overflow | int
        
        The number with the prefix's digits rotated in (decimal rotate by its power of ten).
        """
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
class TMC5240RegisterValue:
    """
    A TMC5240 register read: the raw word and its fields decoded by the register catalogue.
    """
    def __repr__(self) -> str:
        ...
    @property
    def address(self) -> int:
        """
        The register address.
        """
    @property
    def fields(self) -> dict:
        """
        Field name -> value, from bit 0 up; signed fields in two's complement.
        """
    @property
    def name(self) -> str:
        """
        The register's MRDR_ constant name.
        """
    @property
    def word(self) -> int:
        """
        The 32-bit word read, unsigned.
        """
class TMC5240Module:
    """
    The stepper drive's TMC5240 axis: register access, the parameter block, configuration, and moves and searches that the firmware runs as processes.
    """
    TMC5240_axis: typing.ClassVar[int] = 0
    def Motion_cfgAxisDirection(self, port: int, axis_dir: int, timeout: float = 3) -> int:
        """
        Bit 4 of GCONF (shaft) and of SWMODE (swap_lr) to axis_dir XOR 1.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            axis_dir (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0
        
        Raises, before anything is sent:
            (port as usual)
            TypeError: axis_dir is not an int.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgAxisDirection_async(self, port: int, axis_dir: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgAxisDirection, without timeout: Bit 4 of GCONF (shaft) and of SWMODE (swap_lr) to axis_dir XOR 1.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            axis_dir (int): 0 or 1
        
        Returns:
            int: the greatest status of the steps, from 0
        
        Raises, before anything is sent:
            (port as usual)
            TypeError: axis_dir is not an int.
        """
    def Motion_cfgEncoder(self, port: int, encoder_dir: int, encoder_posi: int, timeout: float = 3) -> int:
        """
        XACTUAL and XENC to the position, ENC_CONST 1 (encoder_dir 0) or -1.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            encoder_dir (int): 0 or 1
            encoder_posi (int): steps
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgEncoder_async(self, port: int, encoder_dir: int, encoder_posi: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgEncoder, without timeout: XACTUAL and XENC to the position, ENC_CONST 1 (encoder_dir 0) or -1.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            encoder_dir (int): 0 or 1
            encoder_posi (int): steps
        
        Returns:
            int: the greatest status of the steps, from 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_cfgLimit(self, port: int, en_forward: int, en_reverse: int, limit_polarity: int, timeout: float = 3) -> int:
        """
        Stores the limit settings, then writes SWMODE's low byte (enables and polarities); its upper half is cleared.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            en_forward (int): 1 enables
            en_reverse (int): 1 enables
            limit_polarity (int): 0 active low, 1 active high
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_cfgLimit_async(self, port: int, en_forward: int, en_reverse: int, limit_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_cfgLimit, without timeout: Stores the limit settings, then writes SWMODE's low byte (enables and polarities); its upper half is cleared.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            en_forward (int): 1 enables
            en_reverse (int): 1 enables
            limit_polarity (int): 0 active low, 1 active high
        
        Returns:
            int: the greatest status of the steps, from 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_close(self, port: int, timeout: float = 3) -> int:
        """
        Checks the port; nothing is sent.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_close_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_close, without timeout: Checks the port; nothing is sent.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_enableServoOff(self, port: int, timeout: float = 3) -> int:
        """
        Digital port 2, pin 0 to 1.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_enableServoOff_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_enableServoOff, without timeout: Digital port 2, pin 0 to 1.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_enableServoOn(self, port: int, timeout: float = 3) -> int:
        """
        Digital port 2, pin 0 to 0.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_enableServoOn_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_enableServoOn, without timeout: Digital port 2, pin 0 to 0.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_getAlarmStatus(self, port: int, timeout: float = 3) -> int:
        """
        1 when GSTAT shows a driver error, a charge pump undervoltage or bit 12.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0 or 1
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_getAlarmStatus_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_getAlarmStatus, without timeout: 1 when GSTAT shows a driver error, a charge pump undervoltage or bit 12.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0 or 1
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_getLimitStatus(self, port: int, timeout: float = 3) -> list[int]:
        """
        The limit and home inputs (READ_AND_GET_DI, mask 7).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: [forward, reverse, home], each 0 or 1
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_getLimitStatus_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable Motion_getLimitStatus, without timeout: The limit and home inputs (READ_AND_GET_DI, mask 7).
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            list[int]: [forward, reverse, home], each 0 or 1
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_getParameters(self, port: int, timeout: float = 3) -> int:
        """
        Reads the parameter block the drive uses into TMC5240_default_dict.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_getParameters_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_getParameters, without timeout: Reads the parameter block the drive uses into TMC5240_default_dict.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_getProcessState(self, port: int, timeout: float = 3) -> int:
        """
        The state of the drive's process (the firmware's number; the simulator answers 0 when idle).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the process state byte
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_getProcessState_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_getProcessState, without timeout: The state of the drive's process (the firmware's number; the simulator answers 0 when idle).
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: the process state byte
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_loadCfgFile(self, timeout: float = 3) -> int:
        """
        Reads the axis's settings from section Axis_1 and sends them to drive port 0.
        
        Args:
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            AttributeError: no file opened yet.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_loadCfgFile_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_loadCfgFile, without timeout: Reads the axis's settings from section Axis_1 and sends them to drive port 0.
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            AttributeError: no file opened yet.
        """
    def Motion_loadParameters(self, port: int, timeout: float = 3) -> int:
        """
        Loads the parameter block from the drive's EEPROM and reads it into TMC5240_default_dict.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_loadParameters_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_loadParameters, without timeout: Loads the parameter block from the drive's EEPROM and reads it into TMC5240_default_dict.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_open(self, port: int, timeout: float = 3) -> int:
        """
        Checks the port; nothing is sent.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_openCfgFile(self, filename: str = 'test.ini') -> int:
        """
        Chooses an existing .ini file for save and load.
        
        Args:
            filename (str): an existing file ending in .ini (default 'test.ini')
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            IniFileNotFoundError: no such file.
            IniFileExtensionNameError: the name does not end in .ini.
        """
    def Motion_openCfgFile_async(self, filename: str = 'test.ini') -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_openCfgFile, without timeout: Chooses an existing .ini file for save and load.
        
        Args:
            filename (str): an existing file ending in .ini (default 'test.ini')
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            IniFileNotFoundError: no such file.
            IniFileExtensionNameError: the name does not end in .ini.
        """
    def Motion_open_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_open, without timeout: Checks the port; nothing is sent.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_readCurrentVelocity(self, port: int, timeout: float = 3) -> int:
        """
        VACTUAL, decoded unsigned.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0..2**32-1
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_readCurrentVelocity_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_readCurrentVelocity, without timeout: VACTUAL, decoded unsigned.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0..2**32-1
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_readEncoderPosition(self, port: int, timeout: float = 3) -> list[int]:
        """
        XENC and XACTUAL, both decoded unsigned (a negative position reads large).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: [encoder position, logical position]
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_readEncoderPosition_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable Motion_readEncoderPosition, without timeout: XENC and XACTUAL, both decoded unsigned (a negative position reads large).
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            list[int]: [encoder position, logical position]
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_readRegisterFields(self, port: int, reg_addr: int, timeout: float = 3) -> TMC5240RegisterValue:
        """
        Reads a register and decodes its named fields from the register catalogue: r = Motion_readRegisterFields(0, MRDR_6C_CHOPCONF); r.word, r.fields['toff'].
        
        Args:
            port (int): drive port, a key of mrdr_dict
            reg_addr (int): register address, an MRDR_ constant
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            TMC5240RegisterValue: the raw word and the fields (name -> value)
        
        Raises, before anything is sent:
            (port as usual)
            InputTypeNotCorrectError: reg_addr is not an int.
            InputDataNotInRangeError: no register at reg_addr, or a write-only one.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_readRegisterFields_async(self, port: int, reg_addr: int) -> collections.abc.Coroutine[typing.Any, typing.Any, TMC5240RegisterValue]:
        """
        Awaitable Motion_readRegisterFields, without timeout: Reads a register and decodes its named fields from the register catalogue: r = Motion_readRegisterFields(0, MRDR_6C_CHOPCONF); r.word, r.fields['toff'].
        
        Args:
            port (int): drive port, a key of mrdr_dict
            reg_addr (int): register address, an MRDR_ constant
        
        Returns:
            TMC5240RegisterValue: the raw word and the fields (name -> value)
        
        Raises, before anything is sent:
            (port as usual)
            InputTypeNotCorrectError: reg_addr is not an int.
            InputDataNotInRangeError: no register at reg_addr, or a write-only one.
        """
    def Motion_resetFactory(self, port: int, timeout: float = 3) -> int:
        """
        Restores the factory parameter block.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_resetFactory_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_resetFactory, without timeout: Restores the factory parameter block.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_rstEncoderPosi(self, port: int, encoder_posi: int = 0, timeout: float = 3) -> int:
        """
        Hold mode (RAMPMODE 3), then XACTUAL and XENC to the position.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            encoder_posi (int): steps (default 0)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_rstEncoderPosi_async(self, port: int, encoder_posi: int = 0) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_rstEncoderPosi, without timeout: Hold mode (RAMPMODE 3), then XACTUAL and XENC to the position.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            encoder_posi (int): steps (default 0)
        
        Returns:
            int: the greatest status of the steps, from 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_saveCfgFile(self) -> int:
        """
        Writes the axis's settings to the file, section Axis_1.
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            AttributeError: no file opened yet.
        """
    def Motion_saveCfgFile_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_saveCfgFile, without timeout: Writes the axis's settings to the file, section Axis_1.
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            AttributeError: no file opened yet.
        """
    def Motion_saveParameters(self, port: int, timeout: float = 3) -> int:
        """
        Sends TMC5240_default_dict for the drive to store in its EEPROM.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_saveParameters_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_saveParameters, without timeout: Sends TMC5240_default_dict for the drive to store in its EEPROM.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_setParameters(self, port: int, timeout: float = 3) -> int:
        """
        Sends TMC5240_default_dict (88 bytes, 22 values) for the drive to use.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_setParameters_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_setParameters, without timeout: Sends TMC5240_default_dict (88 bytes, 22 values) for the drive to use.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def Motion_startFindHome(self, port: int, searching_speed: int, approaching_speed: int, acceleration: int, search_direction: int, approach_direction: int, offset: int, reset_position: typing.Any, timeout: float = 3) -> int:
        """
        Starts a home search (MOTION_START_FIND_HOME).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            searching_speed (int): steps/s, u32
            approaching_speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
            search_direction (int): 1 forward, -1 reverse (i8)
            approach_direction (int): 1 forward, -1 reverse (i8)
            offset (int): steps, i32
            reset_position (object): 1 is sent only for the exact text "true"; anything else (True included) sends 0
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_startFindHome_async(self, port: int, searching_speed: int, approaching_speed: int, acceleration: int, search_direction: int, approach_direction: int, offset: int, reset_position: typing.Any) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_startFindHome, without timeout: Starts a home search (MOTION_START_FIND_HOME).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            searching_speed (int): steps/s, u32
            approaching_speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
            search_direction (int): 1 forward, -1 reverse (i8)
            approach_direction (int): 1 forward, -1 reverse (i8)
            offset (int): steps, i32
            reset_position (object): 1 is sent only for the exact text "true"; anything else (True included) sends 0
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
        """
    def Motion_startFindLimit(self, port: int, mode: int, searching_speed: int, approaching_speed: int, acceleration: int, offset: int, reset_position: typing.Any, timeout: float = 3) -> int:
        """
        Starts a limit search (MOTION_START_FIND_END); the direction byte comes first.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            mode (int): 1 forward, -1 reverse (i8)
            searching_speed (int): steps/s, u32
            approaching_speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
            offset (int): steps, i32
            reset_position (object): 1 is sent only for the exact text "true"; anything else (True included) sends 0
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_startFindLimit_async(self, port: int, mode: int, searching_speed: int, approaching_speed: int, acceleration: int, offset: int, reset_position: typing.Any) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_startFindLimit, without timeout: Starts a limit search (MOTION_START_FIND_END); the direction byte comes first.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            mode (int): 1 forward, -1 reverse (i8)
            searching_speed (int): steps/s, u32
            approaching_speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
            offset (int): steps, i32
            reset_position (object): 1 is sent only for the exact text "true"; anything else (True included) sends 0
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
        """
    def Motion_startFindZPolarity(self, port: int, searching_speed: int, approaching_speed: int, acceleration: int, search_direction: int, approach_direction: int, offset: int, reset_position: typing.Any, timeout: float = 3) -> int:
        """
        Starts an encoder index (Z) search (MOTION_START_FIND_Z).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            searching_speed (int): steps/s, u32
            approaching_speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
            search_direction (int): 1 forward, -1 reverse (i8)
            approach_direction (int): 1 forward, -1 reverse (i8)
            offset (int): steps, i32
            reset_position (object): 1 is sent only for the exact text "true"; anything else (True included) sends 0
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_startFindZPolarity_async(self, port: int, searching_speed: int, approaching_speed: int, acceleration: int, search_direction: int, approach_direction: int, offset: int, reset_position: typing.Any) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_startFindZPolarity, without timeout: Starts an encoder index (Z) search (MOTION_START_FIND_Z).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            searching_speed (int): steps/s, u32
            approaching_speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
            search_direction (int): 1 forward, -1 reverse (i8)
            approach_direction (int): 1 forward, -1 reverse (i8)
            offset (int): steps, i32
            reset_position (object): 1 is sent only for the exact text "true"; anything else (True included) sends 0
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
        """
    def Motion_startPositionMove(self, port: int, position: int, speed: int, acceleration: int, deceleration: int, mode: int, timeout: float = 3) -> int:
        """
        Starts a move to a position (MOTION_START_P_MOVE).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            position (int): steps, i32
            speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
            deceleration (int): steps/s2, u32
            mode (int): 0 absolute, 1 relative (i8)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_startPositionMove_async(self, port: int, position: int, speed: int, acceleration: int, deceleration: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_startPositionMove, without timeout: Starts a move to a position (MOTION_START_P_MOVE).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            position (int): steps, i32
            speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
            deceleration (int): steps/s2, u32
            mode (int): 0 absolute, 1 relative (i8)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
        """
    def Motion_startScanMove(self, port: int, position_0: int, position_1: int, speed: int, acceleration: int, timeout: float = 3) -> int:
        """
        Starts a back-and-forth move between two positions (MOTION_START_SCAN_MOVE).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            position_0 (int): steps, i32
            position_1 (int): steps, i32
            speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_startScanMove_async(self, port: int, position_0: int, position_1: int, speed: int, acceleration: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_startScanMove, without timeout: Starts a back-and-forth move between two positions (MOTION_START_SCAN_MOVE).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            position_0 (int): steps, i32
            position_1 (int): steps, i32
            speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
        """
    def Motion_startVelocticyMove(self, port: int, speed: int, acceleration: int, deceleration: int, direction: int, timeout: float = 3) -> int:
        """
        Starts a move at a speed until stopped (MOTION_START_V_MOVE).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
            deceleration (int): steps/s2, u32
            direction (int): 1 forward, -1 reverse (i8)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_startVelocticyMove_async(self, port: int, speed: int, acceleration: int, deceleration: int, direction: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_startVelocticyMove, without timeout: Starts a move at a speed until stopped (MOTION_START_V_MOVE).
        
        Args:
            port (int): drive port, a key of mrdr_dict
            speed (int): steps/s, u32
            acceleration (int): steps/s2, u32
            deceleration (int): steps/s2, u32
            direction (int): 1 forward, -1 reverse (i8)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port, or a type-checked speed or acceleration, is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            TypeError: a field that is not an integer.
            ValueError: a field outside its width (u32, i32, i8).
        """
    def Motion_stopProcess(self, port: int, timeout: float = 3) -> int:
        """
        Ends the running move or search.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Motion_stopProcess_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Motion_stopProcess, without timeout: Ends the running move or search.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0, or the negative code of the firmware's status
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def _Motion_clearFault(self, port: int, timeout: float = 3) -> int:
        """
        Writes 31 to GSTAT: clears the global faults.
        
        Args:
            port (int): drive port byte as given (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_clearFault_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_clearFault, without timeout: Writes 31 to GSTAT: clears the global faults.
        
        Args:
            port (int): drive port byte as given (not checked)
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        """
    def _Motion_getGlobalConfig(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads MRDR_00_GCONF (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getGlobalConfig_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _Motion_getGlobalConfig, without timeout: Reads MRDR_00_GCONF (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        """
    def _Motion_getGlobalStatus(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads MRDR_01_GSTAT (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getGlobalStatus_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _Motion_getGlobalStatus, without timeout: Reads MRDR_01_GSTAT (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        """
    def _Motion_getInpositionStatus(self, port: int, timeout: float = 3) -> int:
        """
        Checks the port; the position-reached bit of the last register read.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0 or 1
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getInpositionStatus_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getInpositionStatus, without timeout: Checks the port; the position-reached bit of the last register read.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0 or 1
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def _Motion_getLimitSwitch(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads MRDR_34_SWMODE (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getLimitSwitch_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _Motion_getLimitSwitch, without timeout: Reads MRDR_34_SWMODE (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        """
    def _Motion_getServeoOnStatus(self, port: int, timeout: float = 3) -> int:
        """
        Checks the port.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_getServeoOnStatus_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_getServeoOnStatus, without timeout: Checks the port.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def _Motion_read(self, port: int, reg_addr: int, timeout: float = 3) -> list[int]:
        """
        Reads a chip register (MOTION_READ_REG) and keeps its status byte.
        
        Args:
            port (int): drive port byte as given (not checked)
            reg_addr (int): register address, an MRDR_ constant
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        
        Raises, before anything is sent:
            ValueError: port or reg_addr outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_readCurrentPosition(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads MRDR_21_XACTUAL (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_readCurrentPosition_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _Motion_readCurrentPosition, without timeout: Reads MRDR_21_XACTUAL (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        """
    def _Motion_readCurrentVelocity(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads MRDR_22_VACTUAL (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_readCurrentVelocity_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _Motion_readCurrentVelocity, without timeout: Reads MRDR_22_VACTUAL (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        """
    def _Motion_readDI(self, port: int, timeout: float = 3) -> int:
        """
        Reads the limit and home inputs (READ_AND_GET_DI, mask 7) and drops them.
        
        Args:
            port (int): digital port
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_readEncoderDirection(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads MRDR_3A_ENC_CONST (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_readEncoderPosition(self, port: int, timeout: float = 3) -> list[int]:
        """
        Reads MRDR_39_XENC (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_readEncoderPosition_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _Motion_readEncoderPosition, without timeout: Reads MRDR_39_XENC (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
        
        Returns:
            list[int]: the register's four bytes, most significant first
        """
    def _Motion_read_async(self, port: int, reg_addr: int) -> collections.abc.Coroutine[typing.Any, typing.Any, list[int]]:
        """
        Awaitable _Motion_read, without timeout: Reads a chip register (MOTION_READ_REG) and keeps its status byte.
        
        Args:
            port (int): drive port byte as given (not checked)
            reg_addr (int): register address, an MRDR_ constant
        
        Returns:
            list[int]: the register's four bytes, most significant first
        
        Raises, before anything is sent:
            ValueError: port or reg_addr outside 0..255.
        """
    def _Motion_resetPosition(self, port: int, position: int, timeout: float = 3) -> int:
        """
        Writes MRDR_21_XACTUAL (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            position (int): the word
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_resetPosition_async(self, port: int, position: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_resetPosition, without timeout: Writes MRDR_21_XACTUAL (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            position (int): the word
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        """
    def _Motion_sendAllConfiguration(self, port: int, timeout: float = 3) -> int:
        """
        Sends the stored encoder direction, axis direction and limit settings.
        
        Args:
            port (int): drive port, a key of mrdr_dict
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_sendAllConfiguration_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_sendAllConfiguration, without timeout: Sends the stored encoder direction, axis direction and limit settings.
        
        Args:
            port (int): drive port, a key of mrdr_dict
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            MRDRPortNotAvaliable: port is not a key of mrdr_dict.
        """
    def _Motion_setEncoderDirection(self, port: int, direction: int, timeout: float = 3) -> int:
        """
        Writes MRDR_3A_ENC_CONST (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            direction (int): the word
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setEncoderDirection_async(self, port: int, direction: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setEncoderDirection, without timeout: Writes MRDR_3A_ENC_CONST (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            direction (int): the word
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        """
    def _Motion_setEncoderPosition(self, port: int, position: int, timeout: float = 3) -> int:
        """
        Writes MRDR_39_XENC (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            position (int): the word
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setEncoderPosition_async(self, port: int, position: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setEncoderPosition, without timeout: Writes MRDR_39_XENC (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            position (int): the word
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        """
    def _Motion_setGlobalConfig(self, port: int, value: int, timeout: float = 3) -> int:
        """
        Writes MRDR_00_GCONF (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            value (int): the word
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setGlobalConfig_async(self, port: int, value: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setGlobalConfig, without timeout: Writes MRDR_00_GCONF (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            value (int): the word
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        """
    def _Motion_setGlobalStatus(self, port: int, value: int, timeout: float = 3) -> int:
        """
        Writes MRDR_01_GSTAT (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            value (int): the word
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setGlobalStatus_async(self, port: int, value: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setGlobalStatus, without timeout: Writes MRDR_01_GSTAT (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            value (int): the word
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        """
    def _Motion_setLimitEnable(self, port: int, forward_enable: int, reverse_enable: int, timeout: float = 3) -> int:
        """
        Stores Forward Enable and Reverse Enable in axis.motion_dict; sends nothing.
        
        Args:
            port (int): drive port byte as given (not checked)
            forward_enable (int): 0 or 1
            reverse_enable (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLimitEnable_async(self, port: int, forward_enable: int, reverse_enable: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLimitEnable, without timeout: Stores Forward Enable and Reverse Enable in axis.motion_dict; sends nothing.
        
        Args:
            port (int): drive port byte as given (not checked)
            forward_enable (int): 0 or 1
            reverse_enable (int): 0 or 1
        
        Returns:
            int: 0
        """
    def _Motion_setLimitPolarity(self, port: int, limit_polarity: int, timeout: float = 3) -> int:
        """
        Stores Forward Polarity and Reverse Polarity in axis.motion_dict; sends nothing.
        
        Args:
            port (int): drive port byte as given (not checked)
            limit_polarity (int): 0 active low, 1 active high
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLimitPolarity_async(self, port: int, limit_polarity: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLimitPolarity, without timeout: Stores Forward Polarity and Reverse Polarity in axis.motion_dict; sends nothing.
        
        Args:
            port (int): drive port byte as given (not checked)
            limit_polarity (int): 0 active low, 1 active high
        
        Returns:
            int: 0
        """
    def _Motion_setLimitSwitch(self, port: int, value: int, timeout: float = 3) -> int:
        """
        Writes MRDR_34_SWMODE (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            value (int): the word
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setLimitSwitch_async(self, port: int, value: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setLimitSwitch, without timeout: Writes MRDR_34_SWMODE (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            value (int): the word
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        """
    def _Motion_setRamp(self, port: int, timeout: float = 3) -> int:
        """
        Writes the eight entries of TMC5240_main_dict in order.
        
        Args:
            port (int): drive port byte as given (not checked)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the greatest status of the steps, from 0
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setRampMode(self, port: int, ramp_mode: int, timeout: float = 3) -> int:
        """
        Writes MRDR_20_RAMPMODE (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            ramp_mode (int): the word
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        
        Raises, before anything is sent:
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_setRampMode_async(self, port: int, ramp_mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setRampMode, without timeout: Writes MRDR_20_RAMPMODE (no check).
        
        Args:
            port (int): drive port byte as given (not checked)
            ramp_mode (int): the word
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        """
    def _Motion_setRamp_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_setRamp, without timeout: Writes the eight entries of TMC5240_main_dict in order.
        
        Args:
            port (int): drive port byte as given (not checked)
        
        Returns:
            int: the greatest status of the steps, from 0
        """
    def _Motion_write(self, port: int, reg_addr: int, data: int, timeout: float = 3) -> int:
        """
        Writes a chip register (MOTION_WRITE_REG).
        
        Args:
            port (int): drive port byte as given (not checked)
            reg_addr (int): register address, an MRDR_ constant
            data (int): the 32-bit word; negative values wrap
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        
        Raises, before anything is sent:
            ValueError: port or reg_addr outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeDO(self, port: int, pin: int, value: int, timeout: float = 3) -> int:
        """
        Writes one digital output pin (SET_AND_WRITE_DO); the reply is not looked at.
        
        Args:
            port (int): digital port
            pin (int): 0..7
            value (int): 0 or 1
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: pin or value is not an int.
            ValueError: a byte outside 0..255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Motion_writeDO_async(self, port: int, pin: int, value: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_writeDO, without timeout: Writes one digital output pin (SET_AND_WRITE_DO); the reply is not looked at.
        
        Args:
            port (int): digital port
            pin (int): 0..7
            value (int): 0 or 1
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: pin or value is not an int.
            ValueError: a byte outside 0..255.
        """
    def _Motion_write_async(self, port: int, reg_addr: int, data: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Motion_write, without timeout: Writes a chip register (MOTION_WRITE_REG).
        
        Args:
            port (int): drive port byte as given (not checked)
            reg_addr (int): register address, an MRDR_ constant
            data (int): the 32-bit word; negative values wrap
        
        Returns:
            int: the reply's status byte as it is (no firmware check)
        
        Raises, before anything is sent:
            ValueError: port or reg_addr outside 0..255.
        """
    def _TMC5240_getSPIStatus(self, status_byte: typing.Any) -> int:
        """
        Stores the eight bits of a status byte in the status_bit attributes; returns 0.
        """
    def _checkTMC5240Port(self, port: typing.Any) -> None:
        """
        Raises InputTypeNotCorrectError or MRDRPortNotAvaliable for a port not in mrdr_dict.
        """
    @property
    def TMC5240_default_dict(self) -> dict:
        """
        The parameter block, name -> (value, register) in wire order: what Motion_setParameters and Motion_saveParameters send and Motion_getParameters and Motion_loadParameters fill. A copy; assign a dict of name -> value (or (value, register)) to change values.
        """
    @TMC5240_default_dict.setter
    def TMC5240_default_dict(self, arg1: dict) -> None:
        ...
    @property
    def TMC5240_main_dict(self) -> dict:
        """
        The ramp set that _Motion_setRamp writes: name -> (value, register), in order.  A copy; assign a dict of name -> value (or (value, register)) to change values.
        """
    @TMC5240_main_dict.setter
    def TMC5240_main_dict(self, arg1: dict) -> None:
        ...
    @property
    def axis(self) -> MotionAxis:
        """
        The axis record and its ini settings.
        """
    @property
    def iniconfig(self) -> typing.Any:
        """
        The settings the module's parser holds, as a configparser.ConfigParser read from its text (a copy). AttributeError before Motion_openCfgFile.
        """
    @property
    def inifile(self) -> str:
        """
        The ini file's name.
        """
    @property
    def inimode(self) -> str:
        """
        The mode the file is written with.
        """
    @property
    def motion_ini(self) -> MotionInifile:
        """
        The ini file's words for the settings.
        """
    @property
    def status_bit0_resetflag(self) -> int:
        """
        A bit of the SPI status byte of the last register read.
        """
    @property
    def status_bit1_driver_err(self) -> int:
        """
        A bit of the SPI status byte of the last register read.
        """
    @property
    def status_bit2_sg2(self) -> int:
        """
        A bit of the SPI status byte of the last register read.
        """
    @property
    def status_bit3_standstill(self) -> int:
        """
        A bit of the SPI status byte of the last register read.
        """
    @property
    def status_bit4_velocityreach(self) -> int:
        """
        A bit of the SPI status byte of the last register read.
        """
    @property
    def status_bit5_positionreach(self) -> int:
        """
        A bit of the SPI status byte of the last register read.
        """
    @property
    def status_bit6_stopl(self) -> int:
        """
        A bit of the SPI status byte of the last register read.
        """
    @property
    def status_bit7_stopr(self) -> int:
        """
        A bit of the SPI status byte of the last register read.
        """
class ThermalResistanceModule(ThermalModule):
    """
    Resistance temperature sensors, PT-100 and PT-1000 (PloverRtd).
    """
    def Thermal_setType(self, port: int, channel: int, type_: int, timeout: float = 3) -> int:
        """
        Sets the sensor wiring.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            type_ (int): 0: two- or four-wire, 1: three-wire
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            ThermalTypeNotVaildError: type_ is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Thermal_setType_async(self, port: int, channel: int, type_: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Thermal_setType, without timeout: Sets the sensor wiring.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            type_ (int): 0: two- or four-wire, 1: three-wire
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            ThermalTypeNotVaildError: type_ is not 0 or 1.
        """
class ThermocoupleModule(ThermalModule):
    """
    Thermocouple inputs (KestrelTherm, PloverTc).
    """
    def Thermal_setOverSampling(self, port: int, channel: int, mode: int, timeout: float = 3) -> int:
        """
        Sets how many samples a reading averages.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            mode (int): 0: 1 (device default), 1: 2, 2: 4, 3: 8, 4: 16
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            ThermalModeNotVaildError: mode is not one of 0..4.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Thermal_setOverSampling_async(self, port: int, channel: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Thermal_setOverSampling, without timeout: Sets how many samples a reading averages.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            mode (int): 0: 1 (device default), 1: 2, 2: 4, 3: 8, 4: 16
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            ThermalModeNotVaildError: mode is not one of 0..4.
        """
    def Thermal_setType(self, port: int, channel: int, type_: int, timeout: float = 3) -> int:
        """
        Sets the thermocouple type.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            type_ (int): 0 B, 1 E, 2 J, 3 K (device default), 4 N, 5 R, 6 S, 7 T
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            ThermalTypeNotVaildError: type_ is not one of 0..7.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def Thermal_setType_async(self, port: int, channel: int, type_: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable Thermal_setType, without timeout: Sets the thermocouple type.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            type_ (int): 0 B, 1 E, 2 J, 3 K (device default), 4 N, 5 R, 6 S, 7 T
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            ThermalTypeNotVaildError: type_ is not one of 0..7.
        """
    def _Thermal_readJunction(self, port: int, channel: int, timeout: float = 3) -> float:
        """
        Reads the cold-junction temperature.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            float: degrees Celsius
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Thermal_readJunction_async(self, port: int, channel: int) -> collections.abc.Coroutine[typing.Any, typing.Any, float]:
        """
        Awaitable _Thermal_readJunction, without timeout: Reads the cold-junction temperature.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
        
        Returns:
            float: degrees Celsius
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
        """
    def _Thermal_setJunctionOn(self, port: int, channel: int, status: bool, timeout: float = 3) -> int:
        """
        Turns the cold-junction compensation on or off.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            status (bool): True sends 1, False 0
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Thermal_setJunctionOn_async(self, port: int, channel: int, status: bool) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Thermal_setJunctionOn, without timeout: Turns the cold-junction compensation on or off.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            status (bool): True sends 1, False 0
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
        """
    def _Thermal_writeJunction(self, port: int, channel: int, temperature: float, timeout: float = 3) -> int:
        """
        Sets the cold-junction temperature.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            temperature (float): degrees Celsius, sent as a 32-bit float
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int, or temperature not a number.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _Thermal_writeJunction_async(self, port: int, channel: int, temperature: float) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _Thermal_writeJunction, without timeout: Sets the cold-junction temperature.
        
        Args:
            port (int): thermal port, a key of thermal_dict
            channel (int): sensor channel: 0..1, on KestrelTherm 0..6
            temperature (float): degrees Celsius, sent as a 32-bit float
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or channel is not an int, or temperature not a number.
            ThermalPortNotAvaliableError: port is not a key of thermal_dict.
            ThermalChipSelectNotAvaliableError: channel is out of range.
        """
class UARTModule:
    """
    The device's two UARTs: open, line settings, write up to 50 bytes a command, read what the device received (streamed by the device, one thread per port).
    """
    @staticmethod
    def _checkUARTBaudRate(baud_rate: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkUARTDataBit(mode: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkUARTDataLength(data: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkUARTNumStopBitMode(mode: typing.Any) -> bool:
        ...
    @staticmethod
    def _checkUARTParityMode(mode: typing.Any) -> bool:
        ...
    def UART_close(self, port: int, timeout: float = 3) -> int:
        """
        Stops the reading, closes the UART; the first close after an open parks both stream threads.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def UART_close_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable UART_close, without timeout: Stops the reading, closes the UART; the first close after an open parks both stream threads.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
        """
    def UART_getPinMap(self) -> dict[int, list[tuple[int, int]]]:
        """
        The UART ports and their pins; nothing is sent.
        
        Returns:
            dict[int, list[tuple[int, int]]]: uart_dict: port -> (digital port, pin) pairs
        """
    def UART_getPinMap_async(self) -> collections.abc.Coroutine[typing.Any, typing.Any, dict[int, list[tuple[int, int]]]]:
        """
        Awaitable UART_getPinMap, without timeout: The UART ports and their pins; nothing is sent.
        
        Returns:
            dict[int, list[tuple[int, int]]]: uart_dict: port -> (digital port, pin) pairs
        """
    def UART_open(self, port: int, timeout: float = 3) -> int:
        """
        Opens a UART after reading the modes of its pins; the first open after a close starts the port's stream and opens both ports' stream gates.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict, or (after the pin-mode read) a pin of the port is in a mode other than Idle, DI or DO.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def UART_open_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable UART_open, without timeout: Opens a UART after reading the modes of its pins; the first open after a close starts the port's stream and opens both ports' stream gates.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict, or (after the pin-mode read) a pin of the port is in a mode other than Idle, DI or DO.
        """
    def UART_read(self, port: int, bytes_to_read: int, delay: float = 0.005) -> list[str]:
        """
        Takes received bytes of a UART. The blocking method waits until bytes_to_read are there, open or not; the awaitable twin takes what is there, up to bytes_to_read, without waiting.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            bytes_to_read (int): how many bytes; -1 for all that are there
            delay (float): kept for the interface; a byte wakes the reader at once (default 0.005)
        
        Returns:
            list[str]: one one-character string per byte, oldest first
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or bytes_to_read is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
        """
    def UART_read_async(self, port: int, bytes_to_read: int, delay: float = 0.005) -> collections.abc.Coroutine[typing.Any, typing.Any, list[str]]:
        """
        Awaitable UART_read, without timeout: Takes received bytes of a UART. The blocking method waits until bytes_to_read are there, open or not; the awaitable twin takes what is there, up to bytes_to_read, without waiting.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            bytes_to_read (int): how many bytes; -1 for all that are there
            delay (float): kept for the interface; a byte wakes the reader at once (default 0.005)
        
        Returns:
            list[str]: one one-character string per byte, oldest first
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or bytes_to_read is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
        """
    def UART_reset(self, port: int, timeout: float = 3) -> int:
        """
        Resets a UART.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def UART_reset_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable UART_reset, without timeout: Resets a UART.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
        """
    def UART_setBaudRate(self, port: int, baud_rate: int, timeout: float = 3) -> int:
        """
        Sets the baud rate, sent as four bytes, high byte first.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            baud_rate (int): bits per second, at most 400000 (no lower bound)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or baud_rate is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            UARTBaudRateNotSupportError: baud_rate above 400000.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def UART_setBaudRate_async(self, port: int, baud_rate: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable UART_setBaudRate, without timeout: Sets the baud rate, sent as four bytes, high byte first.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            baud_rate (int): bits per second, at most 400000 (no lower bound)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or baud_rate is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            UARTBaudRateNotSupportError: baud_rate above 400000.
        """
    def UART_setDataBit(self, port: int, mode: int, timeout: float = 3) -> int:
        """
        Sets the data size.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            mode (int): 0 or 1, passed to the firmware as it is
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            UARTDataBitNotSupportError: mode is not 0 or 1.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def UART_setDataBit_async(self, port: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable UART_setDataBit, without timeout: Sets the data size.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            mode (int): 0 or 1, passed to the firmware as it is
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            UARTDataBitNotSupportError: mode is not 0 or 1.
        """
    def UART_setNumStopBit(self, port: int, mode: int, timeout: float = 3) -> int:
        """
        Sets the number of stop bits.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            mode (int): 0..3, passed to the firmware as it is
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            UARTStopBitNotSupportError: mode is not in 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def UART_setNumStopBit_async(self, port: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable UART_setNumStopBit, without timeout: Sets the number of stop bits.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            mode (int): 0..3, passed to the firmware as it is
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            UARTStopBitNotSupportError: mode is not in 0..3.
        """
    def UART_setParity(self, port: int, mode: int, timeout: float = 3) -> int:
        """
        Sets the parity.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            mode (int): 0..3, passed to the firmware as it is
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            UARTParityNotSupportError: mode is not in 0..3.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def UART_setParity_async(self, port: int, mode: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable UART_setParity, without timeout: Sets the parity.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            mode (int): 0..3, passed to the firmware as it is
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port or mode is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            UARTParityNotSupportError: mode is not in 0..3.
        """
    def UART_stopReading(self, port: int, timeout: float = 3) -> int:
        """
        Stops the stream of received bytes of a UART.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def UART_stopReading_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable UART_stopReading, without timeout: Stops the stream of received bytes of a UART.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
        """
    def UART_write(self, port: int, write_data: str | list[str], timeout: float = 3) -> int:
        """
        Writes up to 50 characters in one command: a length byte (the items given), then one byte per character code.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            write_data (str | list[str]): a text, or a list of one-character strings; codes 0..255
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or write_data neither a str nor a list.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            UARTExceedMaxLengthError: more than 50 items.
            TypeError: an item of the list is not a one-character string.
            ValueError: a character code above 255.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def UART_write_async(self, port: int, write_data: str | list[str]) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable UART_write, without timeout: Writes up to 50 characters in one command: a length byte (the items given), then one byte per character code.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            write_data (str | list[str]): a text, or a list of one-character strings; codes 0..255
        
        Returns:
            int: 0, or a negative firmware error code
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int, or write_data neither a str nor a list.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            UARTExceedMaxLengthError: more than 50 items.
            TypeError: an item of the list is not a one-character string.
            ValueError: a character code above 255.
        """
    def _UART_free(self) -> None:
        """
        Ends both stream threads (the model's close does this and joins them).
        """
    def _UART_getPinMapPort(self, UART_port: typing.Any) -> list[int]:
        """
        The digital ports the UART's pins lie on, each once.
        """
    def _UART_startReading(self, port: int, timeout: float = 3) -> int:
        """
        Asks the firmware to stream what the UART receives; no reply is awaited.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _UART_startReading_async(self, port: int) -> collections.abc.Coroutine[typing.Any, typing.Any, int]:
        """
        Awaitable _UART_startReading, without timeout: Asks the firmware to stream what the UART receives; no reply is awaited.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
        
        Returns:
            int: 0
        
        Raises, before anything is sent:
            InputTypeNotCorrectError: port is not an int.
            UARTPortNotAvaliableError: port is not a key of uart_dict.
        """
    def _checkUARTPinState(self, port: int, allow_state: list[str], timeout: float = 3) -> None:
        """
        Reads the modes of the digital ports the UART's pins lie on and tests every pin of the UART against each port's modes.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            allow_state (list[str]): mode names that count as free, e.g. ['Idle']
            timeout (float): seconds to wait for each reply, above 0 (default 3)
        
        Returns:
            None: nothing; raises on a busy pin
        
        Raises, before anything is sent:
            UARTPortNotAvaliableError: a pin in a mode not in allow_state (after the read).
            InputDataNotInRangeError: a timeout of 0, below 0 or NaN, once the call has a packet to send.
        """
    def _checkUARTPinState_async(self, port: int, allow_state: list[str]) -> collections.abc.Coroutine[typing.Any, typing.Any, None]:
        """
        Awaitable _checkUARTPinState, without timeout: Reads the modes of the digital ports the UART's pins lie on and tests every pin of the UART against each port's modes.
        
        Args:
            port (int): UART port, a key of uart_dict (1 or 2)
            allow_state (list[str]): mode names that count as free, e.g. ['Idle']
        
        Returns:
            None: nothing; raises on a busy pin
        
        Raises, before anything is sent:
            UARTPortNotAvaliableError: a pin in a mode not in allow_state (after the read).
        """
    def _checkUARTPort(self, port: typing.Any) -> bool:
        ...
    def _uartGateOpen(self, port: typing.SupportsInt | typing.SupportsIndex) -> bool:
        """
        Whether the stream thread of a port may pass its gate.
        """
    def _uartSignalSize(self, port: typing.SupportsInt | typing.SupportsIndex) -> int:
        """
        Bytes waiting in a port's signal queue.
        """
    @property
    def uart_killed(self) -> bool:
        """
        True once the stream threads end.
        """
    @property
    def uart_open_flag(self) -> bool:
        """
        True from a first open to the matching close; one for both ports.
        """
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
class HeronAinImu(WifiDevice, DataLogger, SystemModule, SystemAnalogModule, NetworkModule, WifiModule, AIModule, AHRSModule):
    """
    HeronAinImu (Heron-Ain-Imu): device class WifiDevice; modules System, SystemAnalog, Network, Wifi, AI, AHRS.
    
    HeronAinImu(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class HeronAin(WifiDevice, DataLogger, SystemModule, SystemAnalogModule, NetworkModule, WifiModule, AIModule):
    """
    HeronAin (Heron-Ain): device class WifiDevice; modules System, SystemAnalog, Network, Wifi, AI.
    
    HeronAin(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class HeronAinPlus(WifiDevice, DataLogger, SystemModule, SystemAnalogModule, NetworkModule, WifiModule, AIModule):
    """
    HeronAinPlus (Heron-Ain-Plus): device class WifiDevice; modules System, SystemAnalog, Network, Wifi, AI.
    
    HeronAinPlus(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class Trellis(DataLogger, ETHDevice, SystemModule, NetworkModule, AIModule, AOModule, DIOModule, MCX514Module):
    """
    Trellis (Trellis): device class ETHDevice; modules System, Network, AI, AO, DIO, MCX514.
    
    Trellis(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class MerlinDrive(ETHDevice, SystemModule, NetworkModule, TMC5240Module):
    """
    MerlinDrive (Merlin-Drive): device class ETHDevice; modules System, Network, TMC5240.
    
    MerlinDrive(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class MerlinAxis(ETHDevice, DataLogger, MCX514Module, SystemModule, NetworkModule):
    """
    MerlinAxis (Merlin-Axis): device class ETHDevice; modules MCX514, System, Network.
    
    MerlinAxis(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelAin(ETHDevice, DataLogger, SystemModule, NetworkModule, AIModule):
    """
    KestrelAin (Kestrel-Ain): device class ETHDevice; modules System, Network, AI.
    
    KestrelAin(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelDio(ETHDevice, DataLogger, SystemModule, NetworkModule, DIOModule, PWMModule):
    """
    KestrelDio (Kestrel-Dio): device class ETHDevice; modules System, Network, DIO, PWM.
    
    KestrelDio(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelDioX(ETHDevice, DataLogger, SystemModule, NetworkModule, DIOModule):
    """
    KestrelDioX (Kestrel-Dio_X): device class ETHDevice; modules System, Network, DIO.
    
    KestrelDioX(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelCin(ETHDevice, DataLogger, SystemModule, NetworkModule, AI24BitModule):
    """
    KestrelCin (Kestrel-Cin): device class ETHDevice; modules System, Network, AI24Bit.
    
    KestrelCin(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelCvin(ETHDevice, DataLogger, SystemModule, NetworkModule, AI24BitModule):
    """
    KestrelCvin (Kestrel-Cvin): device class ETHDevice; modules System, Network, AI24Bit.
    
    KestrelCvin(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelRelay(ETHDevice, DataLogger, SystemModule, NetworkModule, DIOModule, RelayModule):
    """
    KestrelRelay (Kestrel-Relay): device class ETHDevice; modules System, Network, DIO, Relay.
    
    KestrelRelay(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelAout(ETHDevice, DataLogger, SystemModule, NetworkModule, AOModule):
    """
    KestrelAout (Kestrel-Aout): device class ETHDevice; modules System, Network, AO.
    
    KestrelAout(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelRes(ETHDevice, DataLogger, SystemModule, NetworkModule, DPOTModule):
    """
    KestrelRes (Kestrel-Res): device class ETHDevice; modules System, Network, DPOT.
    
    KestrelRes(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class KestrelTherm(ETHDevice, DataLogger, SystemModule, NetworkModule, ThermocoupleModule):
    """
    KestrelTherm (Kestrel-Therm): device class ETHDevice; modules System, Network, Thermocouple.
    
    KestrelTherm(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverDio(USBDevice, DataLogger, SystemModule, UARTModule, I2CModule, SPIModule, DIOModule, CounterModule, PWMModule):
    """
    PloverDio (Plover-Dio): device class USBDevice; modules System, UART, I2C, SPI, DIO, Counter, PWM.
    
    PloverDio(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverAin(USBDevice, DataLogger, SystemModule, UARTModule, I2CModule, SPIModule, AIModule, DIOModule, CounterModule, PWMModule):
    """
    PloverAin (Plover-Ain): device class USBDevice; modules System, UART, I2C, SPI, AI, DIO, Counter, PWM.
    
    PloverAin(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverTc(USBDevice, DataLogger, SystemModule, UARTModule, I2CModule, SPIModule, ThermocoupleModule, DIOModule, CounterModule, PWMModule):
    """
    PloverTc (Plover-Tc): device class USBDevice; modules System, UART, I2C, SPI, Thermocouple, DIO, Counter, PWM.
    
    PloverTc(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverCan(USBDevice, DataLogger, SystemModule, UARTModule, I2CModule, SPIModule, CANModule, DIOModule, CounterModule, PWMModule):
    """
    PloverCan (Plover-Can): device class USBDevice; modules System, UART, I2C, SPI, CAN, DIO, Counter, PWM.
    
    PloverCan(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverSink(USBDevice, DataLogger, SystemModule, DIOModule, CounterModule, PWMModule):
    """
    PloverSink (Plover-Sink): device class USBDevice; modules System, DIO, Counter, PWM.
    
    PloverSink(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverAio(USBDevice, DataLogger, SystemModule, UARTModule, I2CModule, AIModule, AOModule, DIOModule, CounterModule, PWMModule):
    """
    PloverAio (Plover-Aio): device class USBDevice; modules System, UART, I2C, AI, AO, DIO, Counter, PWM.
    
    PloverAio(verbose=True): connect it, call its operations (each also as an awaitable name_async), close it; `with` closes it too.
    """
    def __init__(self, verbose: bool = True) -> None:
        ...
class PloverRtd(USBDevice, DataLogger, SystemModule, UARTModule, I2CModule, SPIModule, ThermalResistanceModule, DIOModule, CounterModule, PWMModule):
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
CATEGORY_CONSOLE_DICT: dict = {'System_USB': ['PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverSink', 'PloverAio', 'PloverRtd'], 'System_ETH': ['Trellis', 'MerlinDrive', 'MerlinAxis', 'KestrelAin', 'KestrelDio', 'KestrelDioX', 'KestrelCin', 'KestrelCvin', 'KestrelRelay', 'KestrelAout', 'KestrelRes', 'KestrelTherm'], 'System_Wifi': ['HeronAinImu', 'HeronAin', 'HeronAinPlus'], 'Find_devices': ['DeviceFinder'], 'Drive': ['MerlinDrive'], 'Motion': ['MerlinAxis'], 'AI': ['HeronAinImu', 'HeronAin', 'HeronAinPlus', 'Trellis', 'KestrelAin', 'PloverAin', 'PloverAio'], 'AI24Bit': ['KestrelCin', 'KestrelCvin'], 'AO': ['Trellis', 'KestrelAout', 'PloverAio'], 'AIO': ['Trellis', 'PloverAio'], 'DIO': ['Trellis', 'KestrelDio', 'KestrelDioX', 'PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverSink', 'PloverAio', 'PloverRtd'], 'CAN': ['PloverCan'], 'Temperature_TC': ['KestrelTherm', 'PloverTc'], 'Temperature_RTD': ['PloverRtd'], 'I2C': ['PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverAio', 'PloverRtd'], 'SPI': ['PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverRtd'], 'UART': ['PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverAio', 'PloverRtd'], 'Tutorial': ['Trellis', 'MerlinDrive', 'MerlinAxis', 'KestrelAin', 'KestrelDio', 'KestrelDioX', 'KestrelCin', 'KestrelCvin', 'KestrelRelay', 'KestrelAout', 'KestrelRes', 'KestrelTherm'], 'Relay': ['KestrelRelay'], 'PWM': ['KestrelDio', 'PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverSink', 'PloverAio', 'PloverRtd'], 'Counter': ['PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverSink', 'PloverAio', 'PloverRtd'], 'AHRS': ['HeronAinImu'], 'DPOT': ['KestrelRes']}
CATEGORY_CONSOLE_LIST: list = ['System_USB', 'System_ETH', 'System_Wifi', 'Find_devices', 'Drive', 'Motion', 'AI', 'AI24Bit', 'AO', 'AIO', 'DIO', 'CAN', 'Temperature_TC', 'Temperature_RTD', 'I2C', 'SPI', 'UART', 'Tutorial', 'Relay', 'PWM', 'Counter', 'AHRS', 'DPOT']
CHECK_CALCULATUON: int = 185
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
COPYRIGHT: str = 'ORV Python driver (pyorv). Released under the MIT licence.'
ECHO_DELAY: float = 0.01
EXAMPLE_CONSOLE_DICT: dict = {'System_USB': ['get_pin_mode', 'get_USB_info', 'hello_world', 'set_and_get_RTC'], 'System_ETH': ['get_network_info', 'hello_world', 'set_and_get_RTC'], 'System_Wifi': ['get_network_info', 'get_Heron_status', 'hello_world', 'set_and_get_RTC', 'set_LED_status'], 'Find_devices': ['find_all_devices'], 'Drive': ['Drive_find_home', 'Drive_find_limit', 'Drive_position_blending', 'Drive_position_move', 'Drive_scan_move', 'Drive_servo_on', 'Drive_velocity_blending_acceleration', 'Drive_velocity_move'], 'Motion': ['Motion_servo_on', 'Motion_find_home', 'Motion_find_index', 'Motion_find_limit', 'Motion_get_logical_position', 'Motion_load_configuration_file', 'Motion_save_configuration_file', 'Motion_position_blending', 'Motion_velocity_blending', 'Motion_velocity_blending_acceleration', 'Motion_1axis_move', 'Motion_1axis_move_with_alarm_in', 'Motion_1axis_move_with_breakpoint', 'Motion_1axis_move_with_capture', 'Motion_1axis_move_with_configuration_file', 'Motion_1axis_move_with_inposition', 'Motion_1axis_move_with_S_curve_acceleration', 'Motion_2axis_circular_interpolation', 'Motion_2axis_linear_interpolation', 'Motion_3axis_helical_interpolation', 'Motion_3axis_linear_interpolation', 'Motion_3axis_asynchronous_move', 'Motion_3axis_synchronous_move'], 'AI': ['AI_continuous', 'AI_continuous_with_logger', 'AI_N_samples_once', 'AI_on_demand_in_loop', 'AI_on_demand_once', 'AI_continuous_multi_slot'], 'AI24Bit': ['AI_on_demand_once'], 'AO': ['AO_write_all_channels', 'AO_write_one_channel', 'AO_waveform_gen'], 'AIO': ['AIO_one_channel_loopback', 'AIO_all_channels_loopback', 'AO_output_while_AI_streaming'], 'DIO': ['DO_blinky_pins', 'DO_blinky_port', 'DIO_loopback_pins', 'DIO_loopback_port', 'DO_write_pins', 'DO_write_port'], 'CAN': ['CAN_read', 'CAN_write'], 'Temperature_TC': ['TC_read_channel_data', 'TC_read_channel_data_with_logger', 'TC_read_channel_status'], 'Temperature_RTD': ['RTD_read_channel_data', 'RTD_read_channel_data_with_logger', 'RTD_read_channel_status'], 'I2C': ['I2C_write_read'], 'SPI': ['SPI_read_and_write', 'SPI_write'], 'UART': ['UART_read', 'UART_write'], 'Tutorial': ['single_loop_thread', 'single_loop_async', 'multiple_loops_thread', 'multiple_loops_async'], 'Relay': ['Relay_set_channel', 'Relay_read_counters'], 'PWM': ['PWM_generate'], 'Counter': ['Counter_read'], 'AHRS': ['AHRS_read', 'AHRS_visualize'], 'DPOT': ['DPOT_readByChannel', 'DPOT_writeAllChannels']}
EXAMPLE_GUI_DICT: dict = {'AI': ['AI_integrated_gui'], 'AO': ['AO_gui'], 'DO': ['DO_gui'], 'I2C': ['I2C_gui'], 'SPI': ['SPI_gui'], 'System': ['get_device_info_gui', 'find_all_devices_gui'], 'Temperature_RTD': ['RTD_gui'], 'Temperature_TC': ['TC_gui'], 'UART': ['UART_gui']}
GET_DEVICE_INFO: int = 252
GET_DRIVER_INFO: int = 240
HANDLE_DICT: dict = {'utilities': ['DeviceFinder', 'DataLogger'], 'wireless': ['HeronAinImu', 'HeronAin', 'HeronAinPlus'], 'ethernet': ['Trellis', 'MerlinDrive', 'MerlinAxis', 'KestrelAin', 'KestrelDio', 'KestrelDioX', 'KestrelCin', 'KestrelCvin', 'KestrelRelay', 'KestrelAout', 'KestrelRes', 'KestrelTherm'], 'USB': ['PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverSink', 'PloverAio', 'PloverRtd']}
HANDLE_LIST: list = ['DeviceFinder', 'DataLogger', 'HeronAinImu', 'HeronAin', 'HeronAinPlus', 'Trellis', 'MerlinDrive', 'MerlinAxis', 'KestrelAin', 'KestrelDio', 'KestrelDioX', 'KestrelCin', 'KestrelCvin', 'KestrelRelay', 'KestrelAout', 'KestrelRes', 'KestrelTherm', 'PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverSink', 'PloverAio', 'PloverRtd']
HANDLE_PROPERTIES: dict = {'DeviceFinder': {'connect': 'default', 'Find_devices': None, 'cat_port': ['Find_devices']}, 'DataLogger': {'connect': None, 'cat_port': list()}, 'HeronAinImu': {'connect': '192.168.1.110', 'System_Wifi': None, 'AI': 0, 'AHRS': 0, 'cat_port': ['System_Wifi', 'AI', 'AHRS']}, 'HeronAin': {'connect': '192.168.1.110', 'System_Wifi': None, 'AI': 0, 'cat_port': ['System_Wifi', 'AI']}, 'HeronAinPlus': {'connect': '192.168.1.110', 'System_Wifi': None, 'AI': 0, 'cat_port': ['System_Wifi', 'AI']}, 'Trellis': {'connect': '192.168.1.110', 'System_ETH': None, 'AI': 1, 'AO': 1, 'AIO': 1, 'DIO': 1, 'Tutorial': None, 'cat_port': ['System_ETH', 'AI', 'AO', 'AIO', 'DIO', 'Tutorial']}, 'MerlinDrive': {'connect': '192.168.1.110', 'System_ETH': None, 'Drive': 0, 'Tutorial': None, 'cat_port': ['System_ETH', 'Drive', 'Tutorial']}, 'MerlinAxis': {'connect': '192.168.1.110', 'System_ETH': None, 'Motion': 0, 'Tutorial': None, 'cat_port': ['System_ETH', 'Motion', 'Tutorial']}, 'KestrelAin': {'connect': '192.168.1.110', 'System_ETH': None, 'AI': 0, 'Tutorial': None, 'cat_port': ['System_ETH', 'AI', 'Tutorial']}, 'KestrelDio': {'connect': '192.168.1.110', 'System_ETH': None, 'DIO': 1, 'Tutorial': None, 'PWM': 0, 'cat_port': ['System_ETH', 'DIO', 'Tutorial', 'PWM']}, 'KestrelDioX': {'connect': '192.168.1.110', 'System_ETH': None, 'DIO': 2, 'Tutorial': None, 'cat_port': ['System_ETH', 'DIO', 'Tutorial']}, 'KestrelCin': {'connect': '192.168.1.110', 'System_ETH': None, 'AI24Bit': 0, 'Tutorial': None, 'cat_port': ['System_ETH', 'AI24Bit', 'Tutorial']}, 'KestrelCvin': {'connect': '192.168.1.110', 'System_ETH': None, 'AI24Bit': 0, 'Tutorial': None, 'cat_port': ['System_ETH', 'AI24Bit', 'Tutorial']}, 'KestrelRelay': {'connect': '192.168.1.110', 'System_ETH': None, 'Tutorial': None, 'Relay': None, 'cat_port': ['System_ETH', 'Tutorial', 'Relay']}, 'KestrelAout': {'connect': '192.168.1.110', 'System_ETH': None, 'AO': 0, 'Tutorial': None, 'cat_port': ['System_ETH', 'AO', 'Tutorial']}, 'KestrelRes': {'connect': '192.168.1.110', 'System_ETH': None, 'Tutorial': None, 'DPOT': 0, 'cat_port': ['System_ETH', 'Tutorial', 'DPOT']}, 'KestrelTherm': {'connect': '192.168.1.110', 'System_ETH': None, 'Temperature_TC': 1, 'Tutorial': None, 'cat_port': ['System_ETH', 'Temperature_TC', 'Tutorial']}, 'PloverDio': {'connect': 'default', 'System_USB': None, 'DIO': 0, 'I2C': 1, 'SPI': 1, 'UART': 1, 'PWM': 0, 'Counter': 0, 'cat_port': ['System_USB', 'DIO', 'I2C', 'SPI', 'UART', 'PWM', 'Counter']}, 'PloverAin': {'connect': 'default', 'System_USB': None, 'AI': 0, 'DIO': 0, 'I2C': 1, 'SPI': 2, 'UART': 1, 'PWM': 0, 'Counter': 0, 'cat_port': ['System_USB', 'AI', 'DIO', 'I2C', 'SPI', 'UART', 'PWM', 'Counter']}, 'PloverTc': {'connect': 'default', 'System_USB': None, 'DIO': 0, 'Temperature_TC': 1, 'I2C': 1, 'SPI': 2, 'UART': 1, 'PWM': 0, 'Counter': 0, 'cat_port': ['System_USB', 'DIO', 'Temperature_TC', 'I2C', 'SPI', 'UART', 'PWM', 'Counter']}, 'PloverCan': {'connect': 'default', 'System_USB': None, 'DIO': 0, 'CAN': 1, 'I2C': 1, 'SPI': 2, 'UART': 1, 'PWM': 0, 'Counter': 0, 'cat_port': ['System_USB', 'DIO', 'CAN', 'I2C', 'SPI', 'UART', 'PWM', 'Counter']}, 'PloverSink': {'connect': 'default', 'System_USB': None, 'DIO': 2, 'PWM': 0, 'Counter': 0, 'cat_port': ['System_USB', 'DIO', 'PWM', 'Counter']}, 'PloverAio': {'connect': 'default', 'System_USB': None, 'AI': 0, 'AO': 0, 'AIO': 0, 'DIO': 0, 'I2C': 1, 'UART': 1, 'PWM': 0, 'Counter': 0, 'cat_port': ['System_USB', 'AI', 'AO', 'AIO', 'DIO', 'I2C', 'UART', 'PWM', 'Counter']}, 'PloverRtd': {'connect': 'default', 'System_USB': None, 'DIO': 0, 'Temperature_RTD': 1, 'I2C': 1, 'SPI': 2, 'UART': 1, 'PWM': 0, 'Counter': 0, 'cat_port': ['System_USB', 'DIO', 'Temperature_RTD', 'I2C', 'SPI', 'UART', 'PWM', 'Counter']}}
LABEL_DICT: dict = {'utilities': 'Utilities', 'wireless': 'Wifi devices', 'ethernet': 'Ethernet devices', 'USB': 'USB devices', 'product_list': 'Products Usage', 'DeviceFinder': 'Device finder', 'DataLogger': 'Data logger', 'HeronAinImu': 'Heron-Ain-Imu', 'HeronAin': 'Heron-Ain', 'HeronAinPlus': 'Heron-Ain-Plus', 'Trellis': 'Trellis', 'TrellisLite': 'Trellis-Lite', 'MerlinDrive': 'Merlin-Drive', 'MerlinAxis': 'Merlin-Axis', 'KestrelAin': 'Kestrel-Ain', 'KestrelDio': 'Kestrel-Dio', 'KestrelDioX': 'Kestrel-Dio_X', 'KestrelCin': 'Kestrel-Cin', 'KestrelCvin': 'Kestrel-Cvin', 'KestrelRelay': 'Kestrel-Relay', 'KestrelAout': 'Kestrel-Aout', 'KestrelRes': 'Kestrel-Res', 'KestrelTherm': 'Kestrel-Therm', 'PloverDio': 'Plover-Dio', 'PloverAin': 'Plover-Ain', 'PloverTc': 'Plover-Tc', 'PloverCan': 'Plover-Can', 'PloverSink': 'Plover-Sink', 'PloverAio': 'Plover-Aio', 'PloverRtd': 'Plover-Rtd', 'System_USB': 'System (USB devices)', 'get_pin_mode': 'Get pin modes', 'get_USB_info': 'Get USB device info', 'hello_world': 'Hello world', 'set_and_get_RTC': 'Set and get the clock', 'System_ETH': 'System (Ethernet devices)', 'get_network_info': 'Get network info', 'System_Wifi': 'System (Wifi devices)', 'get_Heron_status': 'Get Heron status', 'set_LED_status': 'Set LED status', 'Find_devices': 'Find devices', 'find_all_devices': 'Find all devices', 'Drive': 'Stepper drive', 'Drive_find_home': 'Find home', 'Drive_find_limit': 'Find limit', 'Drive_position_blending': 'Position blending', 'Drive_position_move': 'Position move', 'Drive_scan_move': 'Scan move', 'Drive_servo_on': 'Servo on', 'Drive_velocity_blending_acceleration': 'Velocity blending with acceleration', 'Drive_velocity_move': 'Velocity move', 'Motion': 'Motion control', 'Motion_servo_on': 'Servo on', 'Motion_find_home': 'Find home', 'Motion_find_index': 'Find index', 'Motion_find_limit': 'Find limit', 'Motion_get_logical_position': 'Get logical position', 'Motion_load_configuration_file': 'Load configuration file', 'Motion_save_configuration_file': 'Save configuration file', 'Motion_position_blending': 'Position blending', 'Motion_velocity_blending': 'Velocity blending', 'Motion_velocity_blending_acceleration': 'Velocity blending with acceleration', 'Motion_1axis_move': 'One-axis move', 'Motion_1axis_move_with_alarm_in': 'One-axis move with alarm input', 'Motion_1axis_move_with_breakpoint': 'One-axis move with breakpoint', 'Motion_1axis_move_with_capture': 'One-axis move with capture', 'Motion_1axis_move_with_configuration_file': 'One-axis move from a configuration file', 'Motion_1axis_move_with_inposition': 'One-axis move with in-position', 'Motion_1axis_move_with_S_curve_acceleration': 'One-axis move with S-curve acceleration', 'Motion_2axis_circular_interpolation': 'Two-axis circular interpolation', 'Motion_2axis_linear_interpolation': 'Two-axis linear interpolation', 'Motion_3axis_helical_interpolation': 'Three-axis helical interpolation', 'Motion_3axis_linear_interpolation': 'Three-axis linear interpolation', 'Motion_3axis_asynchronous_move': 'Three-axis asynchronous move', 'Motion_3axis_synchronous_move': 'Three-axis synchronous move', 'AI': 'Analog input', 'AI_continuous': 'Continuous streaming', 'AI_continuous_with_logger': 'Continuous streaming to a CSV file', 'AI_N_samples_once': 'N samples once', 'AI_on_demand_in_loop': 'On-demand reads in a loop', 'AI_on_demand_once': 'One on-demand read', 'AI_continuous_multi_slot': 'Continuous streaming from several slots', 'AI24Bit': '24-bit analog input', 'AO': 'Analog output', 'AO_write_all_channels': 'Write all channels', 'AO_write_one_channel': 'Write one channel', 'AO_waveform_gen': 'Waveform generator', 'AIO': 'Analog input and output', 'AIO_one_channel_loopback': 'One-channel loopback', 'AIO_all_channels_loopback': 'All-channel loopback', 'AO_output_while_AI_streaming': 'Output while streaming input', 'DIO': 'Digital input and output', 'DO_blinky_pins': 'Blink pins', 'DO_blinky_port': 'Blink a port', 'DIO_loopback_pins': 'Pin loopback', 'DIO_loopback_port': 'Port loopback', 'DO_write_pins': 'Write pins', 'DO_write_port': 'Write a port', 'CAN': 'CAN bus', 'CAN_read': 'Read frames', 'CAN_write': 'Write frames', 'Temperature_TC': 'Thermocouple', 'TC_read_channel_data': 'Read temperatures', 'TC_read_channel_data_with_logger': 'Read temperatures to a CSV file', 'TC_read_channel_status': 'Read channel status', 'Temperature_RTD': 'RTD', 'RTD_read_channel_data': 'Read temperatures', 'RTD_read_channel_data_with_logger': 'Read temperatures to a CSV file', 'RTD_read_channel_status': 'Read channel status', 'I2C': 'I2C', 'I2C_write_read': 'Write and read', 'SPI': 'SPI', 'SPI_read_and_write': 'Read and write', 'SPI_write': 'Write', 'UART': 'UART', 'UART_read': 'Read', 'UART_write': 'Write', 'Tutorial': 'Tutorial', 'single_loop_thread': 'One loop in a thread', 'single_loop_async': 'One loop with asyncio', 'multiple_loops_thread': 'Several loops in threads', 'multiple_loops_async': 'Several loops with asyncio', 'Relay': 'Relay', 'Relay_set_channel': 'Set a relay', 'Relay_read_counters': 'Read switching counters', 'PWM': 'PWM', 'PWM_generate': 'Generate PWM', 'Counter': 'Counter', 'Counter_read': 'Read the counter', 'AHRS': 'Attitude sensor', 'AHRS_read': 'Read attitude', 'AHRS_visualize': 'Visualize attitude', 'DPOT': 'Digital potentiometer', 'DPOT_readByChannel': 'Read by channel', 'DPOT_writeAllChannels': 'Write all channels', 'AI_integrated_gui': 'Analog input panel', 'AO_gui': 'Analog output panel', 'DO': 'Digital output', 'DO_gui': 'Digital output panel', 'I2C_gui': 'I2C test panel', 'SPI_gui': 'SPI test panel', 'System': 'System', 'get_device_info_gui': 'Device network info center', 'find_all_devices_gui': 'Network device finder', 'RTD_gui': 'RTD test panel', 'TC_gui': 'TC test panel', 'UART_gui': 'UART test panel'}
MOTION: int = 208
MOTION_00_JK: int = 0
MOTION_01_DJ: int = 1
MOTION_02_AC: int = 2
MOTION_03_DC: int = 3
MOTION_04_SV: int = 4
MOTION_05_DV: int = 5
MOTION_06_TP: int = 6
MOTION_07_DP: int = 7
MOTION_08_CP: int = 8
MOTION_09_LP: int = 9
MOTION_0A_RP: int = 10
MOTION_0B_SP: int = 11
MOTION_0C_SM: int = 12
MOTION_0D_AO: int = 13
MOTION_0E_LX: int = 14
MOTION_0F_RX: int = 15
MOTION_10_MR0: int = 16
MOTION_11_MR1: int = 17
MOTION_12_MR2: int = 18
MOTION_13_MR3: int = 19
MOTION_14_HV: int = 20
MOTION_15_IV: int = 21
MOTION_16_TM: int = 22
MOTION_17_SP1: int = 23
MOTION_18_SP2: int = 24
MOTION_19_TX: int = 25
MOTION_1A_HLN: int = 26
MOTION_1B_HLV: int = 27
MOTION_1C_GPIO: int = 28
MOTION_1F_NOP: int = 31
MOTION_20_MRM: int = 32
MOTION_21_P1M: int = 33
MOTION_22_P2M: int = 34
MOTION_23_H1M: int = 35
MOTION_24_H2M: int = 36
MOTION_25_FLM: int = 37
MOTION_26_S0M: int = 38
MOTION_27_S1M: int = 39
MOTION_28_S2M: int = 40
MOTION_29_S3M: int = 41
MOTION_2A_IPM: int = 42
MOTION_30_LP: int = 48
MOTION_31_RP: int = 49
MOTION_32_CV: int = 50
MOTION_33_CA: int = 51
MOTION_34_MR0: int = 52
MOTION_35_MR1: int = 53
MOTION_36_MR2: int = 54
MOTION_37_MR3: int = 55
MOTION_38_CT: int = 56
MOTION_39_TX: int = 57
MOTION_3A_CHLN: int = 58
MOTION_3B_HLV: int = 59
MOTION_3D_WR1: int = 61
MOTION_3E_WR2: int = 62
MOTION_3F_WR3: int = 63
MOTION_40_MRM: int = 64
MOTION_41_P1M: int = 65
MOTION_42_P2M: int = 66
MOTION_43_AC: int = 67
MOTION_44_SV: int = 68
MOTION_45_DV: int = 69
MOTION_46_TP: int = 70
MOTION_47_SP1: int = 71
MOTION_48_UI: int = 72
MOTION_50_DRVRL: int = 80
MOTION_51_DRVNR: int = 81
MOTION_52_DRVVP: int = 82
MOTION_53_DRVVM: int = 83
MOTION_54_DRVAB: int = 84
MOTION_56_DRVSBRK: int = 86
MOTION_57_DRVFBRK: int = 87
MOTION_58_DIRCP: int = 88
MOTION_59_DIRCM: int = 89
MOTION_5A_HMSRC: int = 90
MOTION_60_LHK1: int = 96
MOTION_61_LHK2: int = 97
MOTION_62_LHK3: int = 98
MOTION_63_LHK4: int = 99
MOTION_64_CHKCW: int = 100
MOTION_65_CHKCCW: int = 101
MOTION_66_BHK2: int = 102
MOTION_67_BHK3: int = 103
MOTION_68_BHK4: int = 104
MOTION_69_HLCW: int = 105
MOTION_6A_HLCCW: int = 106
MOTION_6B_HLPCW: int = 107
MOTION_6C_HLPCCW: int = 108
MOTION_6D_DECEN: int = 109
MOTION_6E_DECDIS: int = 110
MOTION_6F_CLRSTEP: int = 111
MOTION_70_VINC: int = 112
MOTION_71_VDEC: int = 113
MOTION_72_DCC: int = 114
MOTION_73_TMSTA: int = 115
MOTION_74_TMSTP: int = 116
MOTION_75_SPSTA: int = 117
MOTION_76_SPSTP: int = 118
MOTION_77_DHOLD: int = 119
MOTION_78_DFREE: int = 120
MOTION_79_R2CLR: int = 121
MOTION_7A_RR3P0: int = 122
MOTION_7B_RR3P1: int = 123
MOTION_7C_MFPC: int = 124
MOTION_81_SYNC0EN: int = 129
MOTION_82_SYNC1EN: int = 130
MOTION_83_SYNC01EN: int = 131
MOTION_84_SYNC2EN: int = 132
MOTION_85_SYNC02EN: int = 133
MOTION_86_SYNC12EN: int = 134
MOTION_87_SYNC012EN: int = 135
MOTION_88_SYNC3EN: int = 136
MOTION_89_SYNC03EN: int = 137
MOTION_8A_SYNC13EN: int = 138
MOTION_8B_SYNC013EN: int = 139
MOTION_8C_SYNC23EN: int = 140
MOTION_8D_SYNC023EN: int = 141
MOTION_8E_SYNC123EN: int = 142
MOTION_8F_SYNC0123EN: int = 143
MOTION_91_SYNC0DIS: int = 145
MOTION_92_SYNC1DIS: int = 146
MOTION_93_SYNC01DIS: int = 147
MOTION_94_SYNC2DIS: int = 148
MOTION_95_SYNC02DIS: int = 149
MOTION_96_SYNC12DIS: int = 150
MOTION_97_SYNC012DIS: int = 151
MOTION_98_SYNC3DIS: int = 152
MOTION_99_SYNC03DIS: int = 153
MOTION_9A_SYNC13DIS: int = 154
MOTION_9B_SYNC013DIS: int = 155
MOTION_9C_SYNC23DIS: int = 156
MOTION_9D_SYNC023DIS: int = 157
MOTION_9E_SYNC123DIS: int = 158
MOTION_9F_SYNC0123DIS: int = 159
MOTION_A1_SYNC0ACT: int = 161
MOTION_A2_SYNC1ACT: int = 162
MOTION_A3_SYNC01ACT: int = 163
MOTION_A4_SYNC2ACT: int = 164
MOTION_A5_SYNC02ACT: int = 165
MOTION_A6_SYNC12ACT: int = 166
MOTION_A7_SYNC012ACT: int = 167
MOTION_A8_SYNC3ACT: int = 168
MOTION_A9_SYNC03ACT: int = 169
MOTION_AA_SYNC13ACT: int = 170
MOTION_AB_SYNC013ACT: int = 171
MOTION_AC_SYNC23ACT: int = 172
MOTION_AD_SYNC023ACT: int = 173
MOTION_AE_SYNC123ACT: int = 174
MOTION_AF_SYNC0123ACT: int = 175
MOTION_C0_SP0L: int = 192
MOTION_C1_SP0E: int = 193
MOTION_C2_SP1L: int = 194
MOTION_C3_SP1E: int = 195
MOTION_C4_SP2L: int = 196
MOTION_C5_SP2E: int = 197
MOTION_C6_INPL: int = 198
MOTION_C7_INPE: int = 199
MOTION_C8_ALML: int = 200
MOTION_C9_ALME: int = 201
MOTION_CA_HLML: int = 202
MOTION_CB_HLME: int = 203
MOTION_CC_HLMM: int = 204
MOTION_CD_SLME: int = 205
MOTION_CE_SLMO: int = 206
MOTION_CF_SLMM: int = 207
MOTION_D0_MANLD: int = 208
MOTION_D1_DSNDE: int = 209
MOTION_D2_SACC: int = 210
MOTION_D3_DPMD0: int = 211
MOTION_D4_DPMD1: int = 212
MOTION_D5_DPL: int = 213
MOTION_D6_DIRL: int = 214
MOTION_D7_DPINV: int = 215
MOTION_D8_PIMD0: int = 216
MOTION_D9_PIMD1: int = 217
MOTION_DA_PIL: int = 218
MOTION_DB_PIINV: int = 219
MOTION_DC_LMINV: int = 220
MOTION_DD_AVTRI: int = 221
MOTION_DE_TMMD: int = 222
MOTION_E0_WR0: int = 224
MOTION_E1_WR1: int = 225
MOTION_E2_WR2: int = 226
MOTION_E3_WR3: int = 227
MOTION_E4_WR4: int = 228
MOTION_E5_WR5: int = 229
MOTION_E6_WR6: int = 230
MOTION_E7_WR7: int = 231
MOTION_E8_RR0: int = 232
MOTION_E9_RR1: int = 233
MOTION_EA_RR2: int = 234
MOTION_EB_RR3: int = 235
MOTION_EC_RR4: int = 236
MOTION_ED_RR5: int = 237
MOTION_EE_RR6: int = 238
MOTION_EF_RR7: int = 239
MOTION_FC_I2CCHK: int = 252
MOTION_FD_I2CRST: int = 253
MOTION_FE_HDRST: int = 254
MOTION_GET_PARAM: int = 7184
MOTION_GET_PROC_STATE: int = 7296
MOTION_LOAD_PARAM: int = 7186
MOTION_READ_REG: int = 7172
MOTION_RESET_FACTORY: int = 7188
MOTION_SAVE_PARAM: int = 7187
MOTION_SET_PARAM: int = 7185
MOTION_START_FIND_END: int = 7328
MOTION_START_FIND_HOME: int = 7329
MOTION_START_FIND_Z: int = 7330
MOTION_START_P_MOVE: int = 7313
MOTION_START_SCAN_MOVE: int = 7314
MOTION_START_V_MOVE: int = 7312
MOTION_STOP_PROC: int = 7297
MOTION_WRITE_REG: int = 7173
MRDR_00_GCONF: int = 0
MRDR_01_GSTAT: int = 1
MRDR_02_IFCNT: int = 2
MRDR_03_SLAVECONF: int = 3
MRDR_04_INP_OUT: int = 4
MRDR_05_X_COMPARE: int = 5
MRDR_06_OTP_PROG: int = 6
MRDR_0A_DRV_CONF: int = 10
MRDR_0B_GLOBAL_SCALER: int = 11
MRDR_10_IHOLD_IRUN: int = 16
MRDR_11_TPOWERDOWN: int = 17
MRDR_12_TSTEP: int = 18
MRDR_13_TPWMTHRS: int = 19
MRDR_14_TCOOLTHRS: int = 20
MRDR_15_THIGH: int = 21
MRDR_20_RAMPMODE: int = 32
MRDR_21_XACTUAL: int = 33
MRDR_22_VACTUAL: int = 34
MRDR_23_VSTART: int = 35
MRDR_24_A1: int = 36
MRDR_25_V1: int = 37
MRDR_26_AMAX: int = 38
MRDR_27_VMAX: int = 39
MRDR_28_DMAX: int = 40
MRDR_29_TVMAX: int = 41
MRDR_2A_D1: int = 42
MRDR_2B_VSTOP: int = 43
MRDR_2C_TZEROWAIT: int = 44
MRDR_2D_XTARGET: int = 45
MRDR_2F_A2: int = 47
MRDR_30_D2: int = 48
MRDR_31_AACTUAL: int = 49
MRDR_33_VDCMIN: int = 51
MRDR_34_SWMODE: int = 52
MRDR_35_RAMPSTAT: int = 53
MRDR_36_XLATCH: int = 54
MRDR_38_ENCMODE: int = 56
MRDR_39_XENC: int = 57
MRDR_3A_ENC_CONST: int = 58
MRDR_3B_ENC_STATUS: int = 59
MRDR_3C_ENC_LATCH: int = 60
MRDR_3D_ENC_DEVIATION: int = 61
MRDR_50_ADC_VSUPPLY_AIN: int = 80
MRDR_51_ADC_TEMP: int = 81
MRDR_52_OTW_OV_VTH: int = 82
MRDR_60_MSLUT0: int = 96
MRDR_61_MSLUT1: int = 97
MRDR_62_MSLUT2: int = 98
MRDR_63_MSLUT3: int = 99
MRDR_64_MSLUT4: int = 100
MRDR_65_MSLUT5: int = 101
MRDR_66_MSLUT6: int = 102
MRDR_67_MSLUT7: int = 103
MRDR_68_MSLUTSEL: int = 104
MRDR_69_MSLUTSTART: int = 105
MRDR_6A_MSCNT: int = 106
MRDR_6B_MSCURACT: int = 107
MRDR_6C_CHOPCONF: int = 108
MRDR_6D_COOLCONF: int = 109
MRDR_6E_DCCTRL: int = 110
MRDR_6F_DRVSTATUS: int = 111
MRDR_70_PWMCONF: int = 112
MRDR_71_PWMSCALE: int = 113
MRDR_72_PWM_AUTO: int = 114
MRDR_74_SG4_THRS: int = 116
MRDR_75_SG4_RESULT: int = 117
MRDR_76_SG4_IND: int = 118
NOTICE: str = 'Pointed at real hardware, the examples switch outputs, relays and drives: check what is wired to the device before running one.'
NUM_BCST_RETRIES: int = 3
NUM_RETRIES: int = 3
OPEN_CAN: int = 48
PACKET_TIMEOUT: int = 5
PRODUCT_LIST: list = ['HeronAinImu', 'HeronAin', 'HeronAinPlus', 'Trellis', 'MerlinDrive', 'MerlinAxis', 'KestrelAin', 'KestrelDio', 'KestrelDioX', 'KestrelCin', 'KestrelCvin', 'KestrelRelay', 'KestrelAout', 'KestrelRes', 'KestrelTherm', 'PloverDio', 'PloverAin', 'PloverTc', 'PloverCan', 'PloverSink', 'PloverAio', 'PloverRtd']
QUEUE_SIZE_MAX: int = 1000000
QUEUE_TIMEOUT: int = 999999
RETRY_TIMEOUT: int = 1
SCENARIO: str = 'Pick a product, then an example category and an example. Every example runs against the built-in simulator as it stands, and against a real device given --usb SERIAL or --ip HOST.'
SEE_MORE: str = 'More examples: `pyorv examples` lists them all and `pyorv examples run CATEGORY/NAME` runs one; docs/USER_GUIDE.md tells the rest.'
SPYDER: str = 'In Spyder or another IDE that keeps its interpreter alive, close every device (or use `with`) before running a script again: an open device keeps its threads and its link.'
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
