"""Records, messages and bundles of the traffic-aware routing feature tarn as Python objects.

    for message in lumo_tarn.messages(open("answer.bin", "rb").read()):
        for table in message.payload.lumo_data:
            for tc in table.agg_tc_list.tc_list:
                print(tc.id, tc.src_prefix, tc.dst_prefix)

Each record of the schema is a class, such as DpTc, with an attribute for each member. The package loads the shared
library from the path in the environment variable LUMO_TARN_LIBRARY, else from its own installation, else as
liblumo_ui_tarn.so.1 from the loader's search path. Errors of the library raise OSError with an errno number.
"""

from ._base import Address, Array, Message, Record
from ._captures import Control, bundle_frames, frames, messages, recording
from ._native import Handle, handle
from .records import *  # noqa: F403 - the classes of the schema
from .records import __all__ as _classes

__all__ = [
    "Address",
    "Array",
    "Control",
    "Handle",
    "Message",
    "Record",
    "bundle_frames",
    "frames",
    "handle",
    "messages",
    "recording",
]
__all__ += _classes
