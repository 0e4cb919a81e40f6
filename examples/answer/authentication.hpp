// Digest authentication of one user (RFC 3261, 22.4, and RFC 7616). A nonce contains the time at which it was made and
// is sealed with a key of this run, so nothing is kept for a client until it has proved that it knows the password.
#pragma once

#include <map>
#include <optional>
#include <tuple>
#include <vector>

#include "requests.hpp"

class Authentication
{
public:
    // The algorithms, in the order in which they are offered, must be known to digest.h.
    Authentication( std::string name, std::string word, std::vector<std::string> offered,
                    std::chrono::milliseconds time );

    // Nothing if the request comes from the user; it then has the proof for its 2xx. Otherwise the 401.
    std::optional<Message> refuse( Request &request );

private:
    static constexpr std::size_t maxUses = 10000;
    static constexpr int64_t copying = 32000; // milliseconds in which a request may be sent again
    static constexpr const char *realm = "answer";

    // When a nonce was made, its number, and a count with which it was used.
    using Use = std::tuple<int64_t, uint32_t, std::string>;

    struct Claim
    {
        std::string username, uri, nonce, response, algorithm, cnonce, nonceCount;
    };

    std::optional<Claim> findClaim( const Request &request ) const;
    std::string digest( const Claim &claim, const std::string &method ) const;
    std::string completed( const std::string &front ) const;
    std::string makeNonce();
    bool takeUse( const Request &request, const Claim &claim );
    Message challenge( const Request &request, bool stale );

    std::string user, password, key;
    std::vector<std::string> algorithms;
    std::chrono::milliseconds life; // after which a nonce is stale
    uint32_t lastNumber = 0;
    // Each with the seal of its request, since only a copy of that request may use it again. If there are too many, the
    // oldest nonce is dropped and counts as stale, like all before it.
    std::map<Use, std::string> uses;
    Use gone;
};
