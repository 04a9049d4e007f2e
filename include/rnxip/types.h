/* Shared types, status codes and selectors of rnxIP. C11 and C++. */
#ifndef RNXIP_TYPES_H
#define RNXIP_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Elements. The tags 8u ... 64f in function names stand for these types. ---- */

typedef uint8_t Rnx8u;
typedef int8_t Rnx8s;
typedef uint16_t Rnx16u;
typedef int16_t Rnx16s;
typedef uint32_t Rnx32u;
typedef int32_t Rnx32s;
typedef int64_t Rnx64s;
typedef float Rnx32f;
typedef double Rnx64f;

/* 32sc */
typedef struct Rnx32sc {
  Rnx32s re, im;
} Rnx32sc;

/* 32fc */
typedef struct Rnx32fc {
  Rnx32f re, im;
} Rnx32fc;

/* ---- Geometry. Sizes and offsets are in pixels, steps in bytes. ---- */

/* Size of a region of interest (ROI); passed by value. */
typedef struct RnxiSize {
  int32_t width, height;
} RnxiSize;

/* Size in the _L functions; passed by address. */
typedef struct RnxiSizeL {
  int64_t width, height;
} RnxiSizeL;

typedef struct RnxiRect {
  int32_t x, y, width, height;
} RnxiRect;

typedef struct RnxiPoint {
  int32_t x, y;
} RnxiPoint;

typedef struct RnxiPointL {
  int64_t x, y;
} RnxiPointL;

/* Pixels read beyond the source region on each side. */
typedef struct RnxiBorderSize {
  uint32_t borderTop, borderBottom, borderLeft, borderRight;
} RnxiBorderSize;

/* ---- Status: 0 success, negative error (nothing written), positive warning (a defined, degraded result). ---- */

typedef int32_t RnxStatus;

enum {
  rnxStatusNoError = 0,

  rnxStatusWarningNoOperation = 1,     /* nothing to do: a size is 0 */
  rnxStatusWarningDivByZero = 2,       /* a divisor element, or the reference norm, is 0 */
  rnxStatusWarningNoIntersection = 29, /* the region to process is empty; nothing written */
  rnxStatusWarningWrongTransform = 30, /* the transform cannot be solved */
  rnxStatusWarningRemapOutside = 40,   /* the region to process lies outside the volume; nothing written */
  rnxStatusWarningNoAntialiasing = 46, /* this kind has no antialiasing; done without it */
  rnxStatusWarningSizeTruncated = 48,  /* the destination exceeds the size given at Init; the part inside is done */
  rnxStatusWarningHintIgnored = 52,    /* no such path for this type and channel count; done without the hint */

  rnxStatusBadArgument = -5,             /* an argument is not among its allowed values */
  rnxStatusBadSize = -6,                 /* a width, height or other size below 1 */
  rnxStatusBadRange = -7,                /* a lower bound above its upper bound */
  rnxStatusNullPointer = -8,             /* a required pointer is null */
  rnxStatusInternalFailure = -9,         /* an inner step failed */
  rnxStatusDivByZero = -10,              /* a divisor constant is 0 */
  rnxStatusOutOfRange = -11,             /* a value or offset outside its range */
  rnxStatusBadScaleRange = -12,          /* upper value of a range not above the lower one */
  rnxStatusBadContext = -13,             /* the spec is not of the function's own kind */
  rnxStatusUnsupportedMode = -14,        /* a mode or method not supported */
  rnxStatusBadStep = -16,                /* a step below 1 or too small for the row */
  rnxStatusBadFftOrder = -17,            /* transform order too large */
  rnxStatusBadFftFlag = -18,             /* transform scaling flag not 1, 2, 4 or 8 */
  rnxStatusBadThreshold = -19,           /* lower threshold above upper threshold */
  rnxStatusMomentZero = -21,             /* zero-order moment vanishes */
  rnxStatusBadMirrorAxis = -22,          /* mirror axis outside 0 to 4 */
  rnxStatusBadInterpolation = -23,       /* interpolation kind not supported */
  rnxStatusBadResizeFactor = -24,        /* resize factor not above 0 */
  rnxStatusBadMaskSize = -33,            /* mask size or radius invalid */
  rnxStatusBadAnchor = -34,              /* anchor outside the mask */
  rnxStatusBadEpsilon = -36,             /* tolerance below 0 */
  rnxStatusStepTooShort = -37,           /* a step shorter than the row and its border */
  rnxStatusBadChannel = -47,             /* channel count or selection not supported here */
  rnxStatusBadAlphaType = -50,           /* compositing type above 11 */
  rnxStatusBadDivisor = -51,             /* kernel divisor is 0, or a kernel argument is missing */
  rnxStatusBadChannelCount = -53,        /* channel count other than 1, 3 or 4 */
  rnxStatusBadCoefficients = -56,        /* transform coefficients degenerate */
  rnxStatusBadQuadrangle = -57,          /* quadrangle degenerate */
  rnxStatusBadRectangle = -58,           /* rectangle with negative origin or size below 1 */
  rnxStatusBadDataType = -59,            /* data-type selector not supported */
  rnxStatusBadChannelOrder = -60,        /* channel-order index outside its range */
  rnxStatusLutTooFewLevels = -106,       /* look-up table with fewer than 2 levels */
  rnxStatusHistogramTooFewLevels = -107, /* histogram with fewer than 2 levels */
  rnxStatusStepNotMultiple = -108,       /* step not a multiple of the element size */
  rnxStatusBadNoiseLevel = -125,         /* noise level below 0 or not below 1 */
  rnxStatusBadWeight = -211,             /* weight not above 0 */
  rnxStatusBadDecimateType = -212,       /* decimation filter kind outside 0 to 4 */
  rnxStatusBadRoundMode = -213,          /* rounding mode not 0, 1 or 2 */
  rnxStatusBadBorderType = -225,         /* border type not accepted by the function */
  rnxStatusOddSize = -227,               /* size or offset odd where it must be even */
  rnxStatusBadAlgorithmType = -228,      /* algorithm selector above 2 */
  rnxStatusBadFlag = -231,               /* selector neither 0 nor 1 */
  rnxStatusSizeOverflow = -232           /* a computed size above 0x7fffffff bytes */
};

/* ---- Selectors. Functions take them as int, so that any value has a defined answer. ---- */

/* Rounding mode. */
enum {
  rnxRoundZero = 0,        /* toward zero */
  rnxRoundNearestEven = 1, /* to nearest, a tie to the even neighbour */
  rnxRoundHalfAway = 2,    /* to nearest, a tie away from zero */
  rnxRoundHintFlag = 16    /* filter Init functions: may be OR-ed in; asks for the alternative integer path */
};

/* Accuracy hint. */
enum { rnxAlgHintNone = 0, rnxAlgHintFast = 1, rnxAlgHintAccurate = 2 };

/* Comparison selector. */
enum { rnxCmpLess = 0, rnxCmpLessEq = 1, rnxCmpEq = 2, rnxCmpGreaterEq = 3, rnxCmpGreater = 4 };

/* Mirror axis. */
enum {
  rnxAxisHorizontal = 0,       /* rows upside down */
  rnxAxisVertical = 1,         /* each row reversed */
  rnxAxisBoth = 2,             /* both of the above */
  rnxAxisMainDiagonal = 3,     /* (x, y) goes to (y, x) */
  rnxAxisSecondaryDiagonal = 4 /* (x, y) goes to (H-1-y, W-1-x) */
};

/* Border type: a base kind, with flags for sides whose pixels lie in memory beyond the region of interest. */
typedef uint32_t RnxiBorderType;
enum {
  rnxBorderRepl = 1,    /* the nearest edge pixel is repeated */
  rnxBorderWrap = 2,    /* the image repeats periodically */
  rnxBorderMirror = 3,  /* reflection, the edge pixel itself not repeated */
  rnxBorderMirrorR = 4, /* second reflection kind, of the resize functions only */
  rnxBorderConst = 6,   /* the caller's value */
  rnxBorderTransp = 7,  /* outside destination pixels are left unwritten */

  rnxBorderInMemTop = 16,
  rnxBorderInMemBottom = 32,
  rnxBorderInMemLeft = 64,
  rnxBorderInMemRight = 128,
  rnxBorderInMem = 240 /* all four sides lie in memory */
};

/* Scaling flag of a Fourier transform: which direction is divided by what, for transforms of N elements. */
enum {
  rnxFftDivideForward = 1, /* forward by N */
  rnxFftDivideInverse = 2, /* inverse by N */
  rnxFftDivideBySqrt = 4,  /* both by the square root of N */
  rnxFftDivideNone = 8     /* neither */
};

/* Interpolation kind. */
typedef enum RnxiInterpolationType {
  rnxNearest = 1,
  rnxLinear = 2,
  rnxCubic = 6,
  rnxSuper = 8,
  rnxLanczos = 16
} RnxiInterpolationType;

/* Element type of spec-based functions. */
typedef enum RnxDataType { rnx8u = 1, rnx16u = 5, rnx16s = 7, rnx32f = 13, rnx64f = 19 } RnxDataType;

/* ---- Version record ---- */

typedef struct RnxLibraryVersion {
  int32_t major;
  int32_t minor;
  int32_t majorBuild;
  int32_t build;
  char targetCpu[4];
  const char* Name;
  const char* Version;
  const char* BuildDate;
} RnxLibraryVersion;

/* ---- Specs: opaque blocks that the caller allocates and an Init function fills. ---- */

typedef struct RnxiFilterBorderSpec RnxiFilterBorderSpec;
typedef struct RnxiResizeSpec RnxiResizeSpec;
typedef struct RnxiFFTSpec RnxiFFTSpec;
typedef struct RnxiDFTSpec RnxiDFTSpec;

#ifdef __cplusplus
}
#endif

#endif
