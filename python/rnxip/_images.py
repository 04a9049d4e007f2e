"""Functions of images: the export is picked by the arrays, the arguments are bound by the table."""

import ctypes
import re

import numpy

from ._library import Size, call, families, snake

TAGS = {
    "uint8": "8u", "int8": "8s", "uint16": "16u", "int16": "16s", "uint32": "32u", "int32": "32s",
    "float32": "32f", "float64": "64f", "complex64": "32fc",
}  # fmt: skip
DTYPES = {tag: numpy.dtype(name) for name, tag in TAGS.items()}
TAG = re.compile("|".join(sorted(TAGS.values(), key=len, reverse=True)))
SOURCES = {"src", "src1", "src2", "src_channel", "src_planes", "planes"}
DESTINATIONS = {"dst", "dst_any", "dst_channel", "dst_planes", "dstplanes", "maskdst"}
RESULTS = {"sum", "mean", "norm"}
IMPLIED = SOURCES | DESTINATIONS | RESULTS | {"roi", "mask", "srcroi", "dstroi"}
# What a parameter is when the caller does not say.
DEFAULTS = {"scale": 0, "power": 0, "anyround": 1, "round": 1, "hint": 0, "cacheflags": 0}


def tag_of(array):
    try:
        return TAGS[array.dtype.name]
    except KeyError:
        raise TypeError(f"no function of the library takes elements of {array.dtype}") from None


class Image:
    """An array, or a tuple of planes, as the library addresses it."""

    def __init__(self, arrays, name):
        self.planes = list(arrays) if isinstance(arrays, (tuple, list)) else [arrays]
        first = self.planes[0]
        for array in self.planes:
            if not isinstance(array, numpy.ndarray):
                raise TypeError(f"{name}: an array is needed, not {type(array).__name__}")
            if array.shape != first.shape or array.dtype != first.dtype or array.strides != first.strides:
                raise ValueError(f"{name}: the planes differ in shape, type or strides")
        self.tag = tag_of(first)
        self.height, self.width = first.shape[:2]
        self.step = first.strides[0]
        self.kind = self._kind(first, name)
        if self.height > 1 and abs(self.step) > 0x7FFFFFFF:
            raise ValueError(f"{name}: the rows are too far apart")

    def _kind(self, array, name):
        """C1, C3, C4; one channel of several: c3, c4; planes: P3, P4."""
        size = array.itemsize
        if array.ndim == 3 and array.shape[2] in (3, 4) and array.strides[2] == size:
            if array.strides[1] == size * array.shape[2] or array.shape[1] == 1:
                return f"C{array.shape[2]}"
        if array.ndim == 2:
            if len(self.planes) > 1:
                return f"P{len(self.planes)}"
            pixel = array.strides[1] // size if array.strides[1] % size == 0 else 0
            if pixel == 1 or array.shape[1] == 1:
                return "C1"
            if pixel in (3, 4):
                return f"c{pixel}"
        raise ValueError(f"{name}: rows x columns with 1, 3 or 4 channels are needed, contiguous within a row")

    @property
    def channels(self):
        return int(self.kind[1])

    def pointer(self):
        if self.kind[0] == "P":
            return (ctypes.c_void_p * len(self.planes))(*(plane.ctypes.data for plane in self.planes))
        return self.planes[0].ctypes.data


def kinds_of(export):
    """The kinds of the source and the destination of an export, in the terms of Image."""
    layout = export["layout"]
    parts = re.findall(r"AC4|AP4|C\d|P\d|C$", layout)
    source, destination = parts[0], parts[-1]
    if destination == "C":  # C3C: a channel to a channel
        source = destination = "c" + source[1]
    elif export["form"].startswith("C"):  # Set of one channel
        source = destination = "c" + source[1]
    elif export["family"] == "Copy" and source != destination:
        source = "c" + source[1] if destination == "C1" else source
        destination = "c" + destination[1] if parts[0] == "C1" else destination
    plain = {"AC4": "C4", "AP4": "P4"}
    return plain.get(source, source), plain.get(destination, destination)


class Family:
    """One family of the library as a function."""

    def __init__(self, name, exports):
        self.__name__ = snake(name)
        self.name = name
        # Plain forms: sizes of 32 bits, and what works in place is the plain form with one array twice.
        self.exports = [e for e in exports if not e["long"] and "I" not in e["form"]]
        roles = {p["role"] for e in self.exports for p in e["parameters"]}
        blocks = {"fftspec", "dftspec", "filterspec", "resizespec", "srcroi", "bits_src", "bits_dst"}
        self.is_of_images = "roi" in roles and not roles & blocks
        self.sources = max((sum(r in SOURCES for r in self._roles(e)) for e in self.exports), default=0)
        self.__doc__ = f"rnxi{name}; parameters: {', '.join(self._names()) or 'none'}"

    @staticmethod
    def _roles(export):
        return list(dict.fromkeys(p["role"] for p in export["parameters"]))

    def _own(self, export):
        return [p for p in export["parameters"] if p["role"] not in IMPLIED]

    def _names(self):
        return dict.fromkeys(snake(p["name"].removeprefix("p")) for e in self.exports for p in self._own(e))

    def __call__(self, *arguments, out=None, dtype=None, mask=None, alpha=False, layout=None, **named):
        if len(arguments) < self.sources:
            raise TypeError(f"{self.__name__} needs {self.sources} source images")
        sources = [Image(a, f"source {i + 1}") for i, a in enumerate(arguments[: self.sources])]
        target = None if out is None else Image(out, "out")
        if not sources and target is None:
            raise TypeError(f"{self.__name__} needs out")
        first = sources[0] if sources else target
        for other in sources[1:]:
            if (other.height, other.width, other.kind, other.tag) != (first.height, first.width, first.kind, first.tag):
                raise ValueError("the sources differ in shape or type")

        wanted = numpy.dtype(dtype).name if dtype is not None else None
        export = self._pick(first, target, TAGS.get(wanted), mask is not None, alpha, layout)
        values = self._bind(export, list(arguments[self.sources :]), named)
        if target is None and DESTINATIONS & set(self._roles(export)):
            out = self._create(export, first, values)
            target = Image(out, "out")
        return self._run(export, sources, target, out, mask, values, first)

    def _pick(self, first, target, wanted, masked, alpha, layout):
        def fits(export):
            tags = TAG.findall(export["types"].replace("1u", ""))
            source, destination = kinds_of(export)
            results = target.tag if target is not None and "maskdst" not in self._roles(export) else wanted
            return (
                tags[0] == first.tag
                and (results is None or tags[-1] == results)
                and source == first.kind
                and (target is None or destination == target.kind or "maskdst" in self._roles(export))
                and (layout is None or export["layout"] == layout)
                and ("mask" in self._roles(export)) == masked
            )

        found = [e for e in self.exports if fits(e)]
        # Without another wish: results like the source, all four channels.
        found.sort(key=lambda e: (
            ("A" in e["layout"]) != alpha,
            kinds_of(e)[1][0] == "c",
            kinds_of(e)[0] != kinds_of(e)[1],
            len(TAG.findall(e["types"])) > 1,
        ))  # fmt: skip
        if not found:
            raise TypeError(f"no form of {self.__name__} for {first.tag} {first.kind}"
                            + (f" to {target.tag} {target.kind}" if target else ""))  # fmt: skip
        return found[0]

    def _bind(self, export, positional, named):
        """The operation's own parameters in the order of the prototype."""
        values = []
        for p in self._own(export):
            name = snake(p["name"].removeprefix("p"))
            if positional:
                values.append(positional.pop(0))
            elif name in named or p["role"] in named:
                values.append(named.pop(name if name in named else p["role"]))
            elif p["role"] in DEFAULTS:
                values.append(DEFAULTS[p["role"]])
            else:
                raise TypeError(f"{self.__name__}: {name} is missing")
        if positional or named:
            raise TypeError(f"{self.__name__}: too many arguments: {positional or ', '.join(named)}")
        return values

    def _create(self, export, first, values):
        kind = kinds_of(export)[1]
        tag = TAG.findall(export["types"])[-1]
        shape = (first.height, first.width)
        if self.name == "Transpose" or (self.name == "Mirror" and values[0] in (3, 4)):
            shape = shape[::-1]
        if "maskdst" in self._roles(export):
            return numpy.empty(shape, numpy.uint8)
        if kind[0] == "P":
            return tuple(numpy.empty(shape, DTYPES[tag]) for _ in range(int(kind[1])))
        full = shape if kind == "C1" else (*shape, int(kind[1]))
        return (numpy.zeros if "A" in export["layout"] else numpy.empty)(full, DTYPES[tag])

    def _run(self, export, sources, target, out, mask, values, first):
        turned = self.name == "Transpose" or (self.name == "Mirror" and values[0] in (3, 4))
        if target is not None:
            size = (target.width, target.height) if turned else (target.height, target.width)
            if size != (first.height, first.width):
                raise ValueError("out has another size")
        remaining, own, kept, result = list(sources), list(values), [], None
        arguments, role_before = [], None
        for p in export["parameters"]:
            role = p["role"]
            if role in SOURCES or role in DESTINATIONS or role == "mask":
                if role != role_before:
                    image = remaining.pop(0) if role in SOURCES else target
                    image = self._mask(mask, first) if role == "mask" else image
                    kept.append(image.pointer())
                    arguments += [kept[-1], image.step]
            elif role == "roi":
                arguments.append(Size(first.width, first.height))
            elif role in RESULTS:
                result = numpy.zeros(first.channels)
                arguments.append(result.ctypes.data)
            else:
                value = own.pop(0)
                if p["type"].endswith("*"):
                    kept.append(self._array(p, value, export))
                    value = kept[-1].ctypes.data
                arguments.append(value)
            role_before = role
        call(export["name"], *arguments)
        if result is not None:
            return float(result[0]) if len(result) == 1 else tuple(float(v) for v in result)
        return out

    @staticmethod
    def _mask(mask, first):
        image = Image(mask, "mask")
        if (image.height, image.width, image.kind, image.tag) != (first.height, first.width, "C1", "8u"):
            raise ValueError("the mask must be a uint8 image of one channel and the same size")
        return image

    @staticmethod
    def _array(p, value, export):
        """One value per channel; a single number stands for all."""
        dtype = numpy.intc if p["type"] == "const int*" else DTYPES[re.search(r"Rnx(\w+)", p["type"])[1]]
        channels = max(int(digit) for digit in re.findall(r"\d", export["layout"]))
        used = 3 if export["layout"] == "AC4" and numpy.ndim(value) and len(value) == 3 else channels
        values = numpy.asarray(value)
        if values.ndim == 0:
            values = numpy.full(channels, value)
        if values.shape not in ((used,), (int(export["layout"][-1]),)):
            raise ValueError(f"{p['name']}: {used} values are needed")
        if dtype != numpy.float32 and dtype != numpy.float64:
            limits = numpy.iinfo(dtype)
            if (values < limits.min).any() or (values > limits.max).any():
                raise OverflowError(f"{p['name']}: a value does not fit the image's type")
        return numpy.ascontiguousarray(values, dtype=dtype)


# ---- What does not follow from the arrays alone ----


def _export(family, tag, kind, alpha=False):
    for export in families()[family]:
        plain = not export["long"] and "I" not in export["form"]
        if plain and tag in (export["types"], export["types"].replace("1u", "")):
            if kinds_of(export)[0] == kind and ("A" in export["layout"]) == alpha:
                return export
    raise TypeError(f"no form of {snake(family)} for {tag} {kind}")


def copy_border(image, top, bottom, left, right, kind="replicate", value=0, alpha=False):
    """A larger image around a copy of this one. kind: replicate, mirror, wrap or constant (of `value`)."""
    source = Image(image, "image")
    names = {"replicate": "Replicate", "mirror": "Mirror", "wrap": "Wrap", "constant": "Const"}
    export = _export(f"Copy{names[kind]}Border", source.tag, source.kind, alpha)
    shape = (source.height + top + bottom, source.width + left + right, *image.shape[2:])
    if min(shape) < 1:
        raise ValueError("the result would be empty")
    out = numpy.zeros(shape, image.dtype)
    target = Image(out, "out")
    arguments = [source.pointer(), source.step, Size(source.width, source.height), target.pointer(), target.step,
                 Size(target.width, target.height), top, left]  # fmt: skip
    if kind == "constant":
        p = export["parameters"][-1]
        if p["type"].endswith("*"):
            values = Family._array(p, value, export)
            arguments.append(values.ctypes.data)
        else:
            arguments.append(value)
    call(export["name"], *arguments)
    return out


def gray_to_bin(image, threshold):
    """Packed bits of one channel, least significant bit first: 1 above the threshold."""
    source = Image(image, "image")
    export = _export("GrayToBin", source.tag, source.kind)
    out = numpy.zeros((source.height, (source.width + 7) // 8), numpy.uint8)
    call(export["name"], source.pointer(), source.step, out.ctypes.data, out.strides[0], 0,
         Size(source.width, source.height), threshold)  # fmt: skip
    return out


def bin_to_gray(bits, width, low=0, high=255, dtype=numpy.uint8):
    """An image of two levels from packed bits."""
    source = Image(bits, "bits")
    if source.tag != "8u" or source.kind != "C1" or not 1 <= width <= 8 * source.width:
        raise ValueError("rows of uint8 that hold `width` bits are needed")
    out = numpy.empty((source.height, width), dtype)
    export = _export("BinToGray", tag_of(out), "C1")
    call(export["name"], source.pointer(), source.step, 0, out.ctypes.data, out.strides[0],
         Size(width, source.height), low, high)  # fmt: skip
    return out
