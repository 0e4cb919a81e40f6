// Accept-Contact value (RFC 3841, 9.2 and 10).
#include "telsx/telsx_accept_contact.h"

#include "telsx/telsx_value.hpp"

using namespace telsx;

struct TELSX_ACCEPT_CONTACT_
{
    RT_OBJECT object;
    RT_BOOL require;
    RT_BOOL isExplicit;
    Ref<TELSX_GENERIC_PARAMS> genericParams; // never null

    static constexpr auto fields( auto &self )
    {
        return std::tie( self.require, self.isExplicit, self.genericParams );
    }
};

TELSX_DEFINE_VALUE_OBJECT( AcceptContact, ACCEPT_CONTACT, acceptContact )
TELSX_DEFINE_FLAG( AcceptContact, acceptContact, Require, require )
TELSX_DEFINE_FLAG( AcceptContact, acceptContact, Explicit, isExplicit )
TELSX_DEFINE_FIELD( AcceptContact, acceptContact, GenericParams, genericParams, genericParams )

TELSX_ACCEPT_CONTACT telsxAcceptContactCreate( void )
{
    TELSX_ACCEPT_CONTACT acceptContact = rt::create<TELSX_ACCEPT_CONTACT_>( telsxAcceptContactSort() );
    acceptContact->genericParams = noGenericParams();
    return acceptContact;
}

RT_STRING telsx___AcceptContactEncode( TELSX_ACCEPT_CONTACT acceptContact )
{
    TELSX_ASSERT( acceptContact );
    Ref<RT_STRING> text = adopt( literal<"*">() );
    ParamWriter params( text );
    params.writeMark<"require">( acceptContact->require );
    params.writeMark<"explicit">( acceptContact->isExplicit );
    params.writeGeneric( acceptContact->genericParams );
    return text.take();
}

TELSX_ACCEPT_CONTACT telsx___AcceptContactTryDecode( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    Text rest = { chs, length };
    if ( !rest.take( telsx___SkipChar( chs, length, '*' ) ) )
        return nullptr;
    Ref<TELSX_ACCEPT_CONTACT> acceptContact = adopt( telsxAcceptContactCreate() );

    ParamReader param( rest );
    while ( param.next() )
    {
        param.readMark<"require">( acceptContact->require );
        param.readMark<"explicit">( acceptContact->isExplicit );
        param.storeGeneric( acceptContact->genericParams );
    }
    return param.failed() ? nullptr : acceptContact.take();
}

int64_t telsx___SkipAcceptContact( const RT_CHAR *chs, int64_t length )
{
    TELSX_ASSERT_CHARS( chs, length );
    return skipWithParams( { chs, length }, telsx___SkipChar( chs, length, '*' ) );
}
