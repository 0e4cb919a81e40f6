/* The base runtime: objects, strings, vectors, dictionaries, buffers, stores, times, modules. */
#ifndef RT_RT_H
#define RT_RT_H

#include "rt/rt_buffer.h"
#include "rt/rt_charset.h"
#include "rt/rt_dict.h"
#include "rt/rt_format.h"
#include "rt/rt_module.h"
#include "rt/rt_object.h"
#include "rt/rt_scan.h"
#include "rt/rt_store.h"
#include "rt/rt_string.h"
#include "rt/rt_time.h"
#include "rt/rt_vector.h"

#endif
