"""Functions with specs and work buffers, which are made and kept here."""

import ctypes

import numpy

from ._images import Image
from ._library import Point, Size, call

CODES = {"8u": 1, "16u": 5, "16s": 7, "32f": 13, "64f": 19}
BORDERS = {"replicate": 1, "mirror": 3, "constant": 6}


def _numbers(n):
    return [ctypes.c_int(0) for _ in range(n)]


def _block(size):
    return ctypes.create_string_buffer(size) if size > 0 else None


def _code(image):
    if image.tag not in CODES:
        raise TypeError(f"no form for elements of {image.tag}")
    return CODES[image.tag]


def resize(image, shape, interpolation="linear", border="replicate"):
    """The image in another size, given as (rows, columns). interpolation: nearest or linear."""
    source = Image(image, "image")
    _code(source)
    linear = {"nearest": False, "linear": True}[interpolation]
    height, width = shape
    if height < 1 or width < 1:
        raise ValueError("the result would be empty")
    out = numpy.empty((height, width, *image.shape[2:]), image.dtype)
    before, after = Size(source.width, source.height), Size(width, height)
    tag, channels = source.tag, f"{source.tag}_{source.kind}R"
    spec_size, init_size, buffer_size = _numbers(3)
    call(f"rnxiResizeGetSize_{tag}", before, after, 2 if linear else 1, 0, ctypes.byref(spec_size),
         ctypes.byref(init_size))  # fmt: skip
    spec = _block(spec_size.value)
    call(f"rnxiResize{'Linear' if linear else 'Nearest'}Init_{tag}", before, after, spec)
    call(f"rnxiResizeGetBufferSize_{tag}", spec, after, source.channels, ctypes.byref(buffer_size))
    buffer = _block(buffer_size.value)
    images = [source.pointer(), source.step, out.ctypes.data, out.strides[0], Point(0, 0), after]
    if linear:
        call(f"rnxiResizeLinear_{channels}", *images, BORDERS[border], None, spec, buffer)
    else:
        call(f"rnxiResizeNearest_{channels}", *images, spec, buffer)
    return out


class FilterPlan:
    """A linear filter for images of one shape and type: plan = FilterPlan(image, kernel, divisor); plan(image).

    An integer kernel (rows x columns) is divided by `divisor`, a kernel of floats is not.
    """

    def __init__(self, image, kernel, divisor=1, round=1, offset=0):
        source = Image(image, "image")
        code = _code(source)
        kernel = numpy.asarray(kernel)
        if kernel.ndim != 2:
            raise ValueError("the kernel needs rows and columns")
        tag = "64f" if source.tag == "64f" else "16s" if kernel.dtype.kind in "iu" and source.tag != "32f" else "32f"
        if tag != "16s":
            kernel = kernel / divisor
        self._kernel = numpy.ascontiguousarray(kernel, {"16s": "int16", "32f": "float32", "64f": "float64"}[tag])
        size = Size(self._kernel.shape[1], self._kernel.shape[0])
        self._like = (source.height, source.width, source.kind, source.tag)
        spec_size, buffer_size = _numbers(2)
        call("rnxiFilterBorderGetSize", size, Size(source.width, source.height), code, CODES[tag], source.channels,
             ctypes.byref(spec_size), ctypes.byref(buffer_size))  # fmt: skip
        self._spec, self._buffer_size = _block(spec_size.value), buffer_size.value
        divisors = [divisor] if tag == "16s" else []
        call(f"rnxiFilterBorderInit_{tag}", self._kernel.ctypes.data, size, *divisors, code, source.channels, round,
             self._spec)  # fmt: skip
        if offset:
            call("rnxiFilterBorderSetMode", 0, offset, self._spec)

    def __call__(self, image, border="replicate", value=0, out=None):
        source = Image(image, "image")
        if (source.height, source.width, source.kind, source.tag) != self._like:
            raise ValueError("the plan is for images of another shape or type")
        out = numpy.empty(image.shape, image.dtype) if out is None else out
        target = Image(out, "out")
        if (target.height, target.width, target.kind, target.tag) != self._like:
            raise ValueError("out has another shape or type")
        if numpy.shares_memory(image, out):
            raise ValueError("out may not overlap the image")
        values = numpy.full(source.channels, value, image.dtype)
        call(f"rnxiFilterBorder_{source.tag}_{source.kind}R", source.pointer(), source.step, target.pointer(),
             target.step, Size(source.width, source.height), BORDERS[border], values.ctypes.data, self._spec,
             _block(self._buffer_size))  # fmt: skip
        return out


def filter_border(image, kernel, divisor=1, border="replicate", value=0, round=1, offset=0):
    """Convolution of the image with a kernel, once; FilterPlan keeps the plan for more images."""
    return FilterPlan(image, kernel, divisor, round, offset)(image, border, value)


def _transform(image, inverse, flag):
    source = Image(image, "image")
    if source.tag not in ("32f", "32fc") or (source.tag == "32fc" and source.kind != "C1"):
        raise TypeError(f"no transform of {source.tag} {source.kind}")
    is_real = source.tag == "32f"
    kind = "R_32f" if is_real else "C_32fc"
    sizes = _numbers(3)
    size = Size(source.width, source.height)
    call(f"rnxiDFTGetSize_{kind}", size, flag, 0, *(ctypes.byref(s) for s in sizes))
    spec, init, work = (_block(s.value) for s in sizes)
    call(f"rnxiDFTInit_{kind}", size, flag, 0, spec, init)
    out = numpy.empty(image.shape, image.dtype)
    direction = ("Inv_PackToR" if inverse else "Fwd_RToPack") if is_real else ("Inv" if inverse else "Fwd") + "_CToC"
    call(f"rnxiDFT{direction}_{source.tag}_{source.kind}R", source.pointer(), source.step, out.ctypes.data,
         out.strides[0], spec, work)  # fmt: skip
    return out


def dft(image, flag=2):
    """Forward Fourier transform: of float32 into a packed spectrum, of complex64 into a complex one."""
    return _transform(image, False, flag)


def inverse_dft(spectrum, flag=2):
    """The way back."""
    return _transform(spectrum, True, flag)
