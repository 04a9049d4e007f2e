"""rnxIP for NumPy arrays.

    import numpy, rnxip
    brighter = rnxip.add_c(image, 40, scale=0)             # a new array
    rnxip.add(a, b, scale=1, out=a)                        # in place
    rnxip.mirror(image[10:50, 20:80], rnxip.AXIS_VERTICAL) # a region, without a copy
    half = rnxip.resize(image, (height // 2, width // 2))

An image is an array of rows x columns, or of rows x columns x 3 or 4 channels, whose rows are contiguous; the distance
between rows is free, so that slices are regions of interest. The element type and the shape pick the export: every
family of the library is a function here, in lower case with underscores (AlphaPremul is alpha_premul), whose arguments
are the sources, then the operation's own parameters by position or name, `out` for the destination, `dtype` for
another element type of the result, `mask`, and `alpha=True` for four channels of which the last is alpha.

Errors are exceptions with the name of the status (RnxError), warnings are RnxWarning. Every export can also be called as
it is in C: rnxip.raw.rnxiAdd_8u_C1RSfs(...). Calls release the interpreter lock.
"""

from ._library import RnxError, RnxWarning, families, raw, version
from ._images import Family, bin_to_gray, copy_border, gray_to_bin
from ._plans import FilterPlan, dft, filter_border, inverse_dft, resize

ROUND_ZERO, ROUND_NEAREST_EVEN, ROUND_HALF_AWAY = range(3)
LESS, LESS_EQ, EQ, GREATER_EQ, GREATER = range(5)
AXIS_HORIZONTAL, AXIS_VERTICAL, AXIS_BOTH, AXIS_MAIN_DIAGONAL, AXIS_SECONDARY_DIAGONAL = range(5)
HINT_NONE, HINT_FAST, HINT_ACCURATE = range(3)


def _define():
    for name, exports in families().items():
        function = Family(name, exports)
        if function.is_of_images and function.__name__ not in globals():
            globals()[function.__name__] = function


_define()
