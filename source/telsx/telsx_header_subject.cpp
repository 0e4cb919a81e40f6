// Subject header (RFC 3261, 20.36).
#include "telsx/telsx_header_subject.h"

#include "telsx/telsx_header.hpp"
#include "telsx/telsx_subject.h"

using namespace telsx;

struct TELSX_HEADER_SUBJECT_
{
    RT_OBJECT object;
    Ref<RT_STRING> subject; // never null

    static constexpr auto fields( auto &self ) { return std::tie( self.subject ); }
};

TELSX_DEFINE_HEADER_OBJECT( HeaderSubject, HEADER_SUBJECT, hdr, "Subject" )
TELSX_DEFINE_NORMAL_FIELD( HeaderSubject, hdr, Subject, subject, subject, telsxSubjectNormalize )

TELSX_HEADER_SUBJECT telsxHeaderSubjectCreate( RT_STRING subject )
{
    TELSX_ASSERT( subject );
    TELSX_HEADER_SUBJECT hdr = rt::create<TELSX_HEADER_SUBJECT_>( telsxHeaderSubjectSort() );
    hdr->subject = adopt( telsxSubjectNormalize( subject ) );
    return hdr;
}

TELSX_MESSAGE_HEADER telsxHeaderSubjectEncode( TELSX_HEADER_SUBJECT hdr )
{
    TELSX_ASSERT( hdr );
    return createHeader( literal<"Subject">(), hdr->subject );
}

static TELSX_HEADER_SUBJECT decode( HeaderLines &lines )
{
    RT_STRING line = lines.last();
    return line && telsxSubjectOk( line ) ? telsxHeaderSubjectCreate( line ) : nullptr;
}
