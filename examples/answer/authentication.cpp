#include "authentication.hpp"

#include <algorithm>
#include <cstdio>

#include <strings.h>

#include "../digest.h"
#include "responses.hpp"

namespace
{

std::string toText( RT_STRING taken )
{
    String text( taken );
    return text ? toUtf8( text ) : "";
}

bool equalInAnyCase( const std::string &a, const char *b ) { return strcasecmp( a.c_str(), b ) == 0; }

// Texts from outside may hold zeros.
bool equal( const std::string &a, const std::string &b )
{
    return a.size() == b.size() && digestEquals( a.data(), b.data(), a.size() );
}

std::string sealed( const std::string &key, const std::string &bytes )
{
    char seal[digestSize];
    digestSeal( key.c_str(), bytes.data(), bytes.size(), seal );
    return seal;
}

int64_t milliseconds()
{
    auto now = Clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>( now ).count();
}

} // namespace

Authentication::Authentication( std::string name, std::string word, std::vector<std::string> offered,
                                std::chrono::milliseconds time )
    : user( std::move( name ) ), password( std::move( word ) ), algorithms( std::move( offered ) ),
      life( time )
{
    for ( int i = 0; i < 4; ++i )
        key += std::to_string( randomNumber() ) + ' ';
}

std::optional<Message> Authentication::refuse( Request &request )
{
    std::optional<Claim> claim = findClaim( request );
    bool right =
        claim && equal( digest( *claim, request.method ), claim->response ) && claim->username == user;
    if ( !right || !takeUse( request, *claim ) )
        return challenge( request, right );
    Owned proof( telsxHeaderAuthenticationInfoCreate() );
    telsxHeaderAuthenticationInfoSetQop( proof.address(), toString( "auth" ).get() );
    telsxHeaderAuthenticationInfoSetRspauth( proof.address(), toString( digest( *claim, "" ) ).get() );
    telsxHeaderAuthenticationInfoSetCnonce( proof.address(), toString( claim->cnonce ).get() );
    telsxHeaderAuthenticationInfoSetNonceCount( proof.address(), toString( claim->nonceCount ).get() );
    request.proof = std::move( proof );
    return std::nullopt;
}

// The first credentials for this realm, if nothing is missing from them. Their URI need not be the Request-URI, which
// a proxy may have changed.
std::optional<Authentication::Claim> Authentication::findClaim( const Request &request ) const
{
    Owned header( telsxHeaderAuthorizationTryDecodeFromMessage( request.message.get() ) );
    int64_t length = header ? telsxHeaderAuthorizationCredentialsLength( header.get() ) : 0;
    for ( int64_t i = 0; i < length; ++i )
    {
        Owned one( telsxHeaderAuthorizationTryDecodeCredentialAt( header.get(), i ) );
        if ( !one || !equalInAnyCase( toText( telsxCredentialsScheme( one.get() ) ), "Digest" )
             || toText( telsxCredentialsRealm( one.get() ) ) != realm )
            continue;
        Claim claim = {
            toText( telsxCredentialsUsername( one.get() ) ),  toText( telsxCredentialsUri( one.get() ) ),
            toText( telsxCredentialsNonce( one.get() ) ),     toText( telsxCredentialsResponse( one.get() ) ),
            toText( telsxCredentialsAlgorithm( one.get() ) ), toText( telsxCredentialsCnonce( one.get() ) ),
            toText( telsxCredentialsNonceCount( one.get() ) )
        };
        if ( claim.algorithm.empty() )
            claim.algorithm = "MD5";
        auto isOffered = [&]( const std::string &name )
        { return equalInAnyCase( claim.algorithm, name.c_str() ); };
        bool whole = std::any_of( algorithms.begin(), algorithms.end(), isOffered ) && !claim.cnonce.empty()
                     && !claim.nonceCount.empty()
                     && equalInAnyCase( toText( telsxCredentialsQop( one.get() ) ), "auth" );
        return whole ? std::optional( std::move( claim ) ) : std::nullopt;
    }
    return std::nullopt;
}

std::string Authentication::digest( const Claim &claim, const std::string &method ) const
{
    DIGEST asked = {};
    asked.algorithm = claim.algorithm.c_str();
    asked.username = user.c_str();
    asked.realm = realm;
    asked.password = password.c_str();
    asked.method = method.c_str();
    asked.uri = claim.uri.c_str();
    asked.nonce = claim.nonce.c_str();
    asked.qop = "auth";
    asked.nonceCount = claim.nonceCount.c_str();
    asked.cnonce = claim.cnonce.c_str();
    char hex[digestSize];
    digestResponse( &asked, hex );
    return hex;
}

// The whole nonce that begins with this time and number: half of their seal follows.
std::string Authentication::completed( const std::string &front ) const
{
    return front + '-' + sealed( key, std::string( realm ) + ' ' + front ).substr( 0, 32 );
}

std::string Authentication::makeNonce()
{
    char front[32];
    std::snprintf( front, sizeof front, "%012llx-%08x", static_cast<unsigned long long>( milliseconds() ),
                   static_cast<unsigned>( ++lastNumber ) );
    return completed( front );
}

// Whether the nonce is one of ours, is not stale, and was not used with this count by another request.
bool Authentication::takeUse( const Request &request, const Claim &claim )
{
    std::string front = claim.nonce.substr( 0, 21 );
    if ( !equal( completed( front ), claim.nonce ) )
        return false;
    int64_t oldest = milliseconds() - life.count();
    Use use = { std::stoll( front.substr( 0, 12 ), nullptr, 16 ),
                static_cast<uint32_t>( std::stoul( front.substr( 13 ), nullptr, 16 ) ), claim.nonceCount };
    for ( char &digit : std::get<2>( use ) )
        digit = static_cast<char>( std::tolower( static_cast<unsigned char>( digit ) ) );
    uses.erase( uses.begin(), uses.lower_bound( { oldest - copying, 0, "" } ) );
    std::string mark = sealed( key, encode( request.message ) );
    if ( auto known = uses.find( use ); known != uses.end() )
        return known->second == mark;
    if ( std::get<0>( use ) < oldest || use <= gone )
        return false;
    uses.emplace( use, mark );
    if ( uses.size() > maxUses )
    {
        // The letter sorts after all counts.
        gone = uses.begin()->first;
        std::get<2>( gone ) = "z";
        uses.erase( uses.begin(), uses.upper_bound( gone ) );
    }
    return true;
}

Message Authentication::challenge( const Request &request, bool stale )
{
    Owned challenges( telsxHeaderWwwAuthenticateCreate() );
    String nonce = toString( makeNonce() );
    for ( const std::string &algorithm : algorithms )
    {
        Owned one( telsxChallengeCreate( toString( "Digest" ).get() ) );
        telsxChallengeSetRealm( one.address(), toString( realm ).get() );
        telsxChallengeSetNonce( one.address(), nonce.get() );
        telsxChallengeSetStale( one.address(), stale );
        telsxChallengeSetAlgorithm( one.address(), toString( algorithm ).get() );
        telsxChallengeSetQopOptions( one.address(), toString( "auth" ).get() );
        telsxHeaderWwwAuthenticateAppendChallenge( challenges.address(), one.get() );
    }
    Message response = respond( request, 401 );
    telsxHeaderWwwAuthenticateEncodeToMessage( challenges.get(), response.address() );
    return response;
}
