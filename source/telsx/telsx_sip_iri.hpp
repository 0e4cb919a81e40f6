// The fields of a SIP address, for the unit that creates one from a telephone number.
#pragma once

#include "telsx/telsx_frame.hpp"
#include "telsx/telsx_sip_iri.h"

struct TELSX_SIP_IRI_
{
    RT_OBJECT object;
    RT_BOOL secure;
    rt::Ref<RT_STRING> user;     // in its escaped form, as in telsx_iri_text.hpp
    rt::Ref<RT_STRING> password; // in its escaped form
    rt::Ref<RT_STRING> host;     // never null
    int64_t port;
    rt::Ref<RT_STRING> transport; // lower case
    rt::Ref<RT_STRING> userParam; // lower case
    rt::Ref<RT_STRING> method;
    int64_t ttl;
    rt::Ref<RT_STRING> maddr;
    rt::Ref<RT_STRING> lr;      // what follows the name
    rt::Ref<RT_DICT> params;    // the others, as in telsx_iri_params.hpp, never null
    rt::Ref<RT_VECTOR> headers; // each name and what follows it, as two elements, never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.secure, self.user, self.password, self.host, self.port, self.transport,
                         self.userParam, self.method, self.ttl, self.maddr, self.lr, self.params,
                         self.headers );
    }
};
