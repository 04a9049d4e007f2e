/* rnxIP: two-dimensional image-processing primitives. This header brings in the whole interface; C11 and C++.
   Written by tools/apigen.py. */
#ifndef RNXIP_H
#define RNXIP_H

#include "rnxip/types.h"

#include "rnxip/alpha.h"
#include "rnxip/arith.h"
#include "rnxip/core.h"
#include "rnxip/data.h"
#include "rnxip/fft.h"
#include "rnxip/filter.h"
#include "rnxip/geom.h"
#include "rnxip/stats.h"

#endif
