/* Internet services: domain names and addresses. */
#ifndef NET_NET_H
#define NET_NET_H

#include "net/net_address.h"
#include "net/net_dns_idna.h"

#endif
