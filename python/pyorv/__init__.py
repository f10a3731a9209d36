"""ORV Python driver.

One object per device: construct a model class, ``connect`` it over USB,
Ethernet or Wi-Fi, call its operations (each also exists as an awaitable
``name_async``), and ``close`` it.  ``pyorv.sim`` starts simulated devices on
loopback for trying the driver without hardware.
"""

from . import _pyorv
from ._pyorv import *  # noqa: F401,F403
from ._pyorv import __version__  # noqa: F401

# The public classes, functions, constants and catalogue tables of the extension.
__all__ = [name for name in dir(_pyorv) if not name.startswith("_")]
