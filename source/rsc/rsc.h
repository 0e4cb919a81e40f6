/* Resource identifiers. */
#ifndef RSC_RSC_H
#define RSC_RSC_H

#include "rsc/rsc_iri.h"

#endif
