#include "place.hpp"

#include <cstdio>
#include <ctime>

#include <arpa/inet.h>

namespace tools
{

std::string toString( const Endpoint &endpoint )
{
    char text[INET6_ADDRSTRLEN] = "";
    inet_ntop( endpoint.isV6 ? AF_INET6 : AF_INET, endpoint.address.data(), text, sizeof text );
    std::string host = endpoint.isV6 ? '[' + std::string( text ) + ']' : text;
    return host + ':' + std::to_string( endpoint.port );
}

std::string timeOf( const Place &place )
{
    std::time_t seconds = place.seconds;
    std::tm utc = {};
    gmtime_r( &seconds, &utc );
    char date[64] = "", fraction[16] = "";
    std::strftime( date, sizeof date, "%Y-%m-%dT%H:%M:%S", &utc );
    std::snprintf( fraction, sizeof fraction, ".%06dZ", static_cast<int>( place.microseconds ) );
    return std::string( date ) + fraction;
}

} // namespace tools
