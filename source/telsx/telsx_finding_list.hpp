// Findings as they are made, in any order.
#pragma once

#include "telsx/telsx_finding.hpp"
#include "telsx/telsx_finding_head.hpp"
#include "telsx/telsx_finding_rules.hpp"

namespace telsx
{

class FindingList
{
public:
    explicit FindingList( Bytes message ) : all( message ) {}
    FindingList( const FindingList & ) = delete;
    FindingList &operator=( const FindingList & ) = delete;
    ~FindingList();

    int64_t length() const { return findings.length(); }
    bool empty() const { return findings.empty(); }

    // The rule is broken at that place; the name is that of the header, or null; the reference is the rule's own
    // unless it is given.
    void add( const FindingRule &rule, int64_t place, RT_STRING headerName = nullptr,
              std::string_view reference = {} );

    // The same for a rule that says what was expected; what is there is appended.
    void addExpected( const FindingRule &rule, int64_t place, Text found, RT_STRING headerName = nullptr );

    // A header that cannot be read: what was expected at that place, and what is there.
    void addUnreadable( RT_STRING headerName, const Ref<RT_STRING> &pieceCode, const Ref<RT_STRING> &words,
                        std::string_view reference, int64_t place, Text found );

    // All of them in the order of their places, with lines and columns.
    RT_VECTOR take();

private:
    void append( int64_t severity, int64_t place, RT_STRING headerName, Ref<RT_STRING> code,
                 Ref<RT_STRING> words, std::string_view reference );

    Bytes all;
    List<TELSX_FINDING> findings;
};

// The string of ASCII.
inline Ref<RT_STRING> stringOf( std::string_view ascii ) { return text( ascii.data(), lengthOf( ascii ) ); }

} // namespace telsx
