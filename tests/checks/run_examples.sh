#!/usr/bin/env bash
# The examples do what they say, on good input and on bad.
# usage: run_examples.sh DECODE STREAM HOP CALL KINDS     where KINDS is telsx_headers.def
set -euo pipefail

scratch=$( mktemp -d )
trap 'rm -rf "$scratch"' EXIT

# expect STATUS COMMAND...: runs it and keeps what it prints in $scratch/out and $scratch/err.
expect()
{
    local status=0
    "${@:2}" >"$scratch/out" 2>"$scratch/err" || status=$?
    [ $status = "$1" ] || fail "${*:2} exits with $status instead of $1"
}
fail() { echo "$1"; cat "$scratch/out" "$scratch/err"; exit 1; }
prints() { grep -qxF -- "$1" "$scratch/out" || fail "nothing prints: $1"; }
prints_in_order() { diff <( grep -xF -- "$1" "$scratch/out" ) - <<<"$1" || fail "these lines do not stand in this order"; }
one_complaint() { [ "$( wc -l <"$scratch/err" )" = 1 ] && [ ! -s "$scratch/out" ] || fail "that is not one line of error"; }

decode=$1 stream=$2 hop=$3 call=$4 kinds=$5

expect 0 "$decode"
prints "  target   sip:renée@mühle.example;transport=tcp"
prints "    The mill, and who is to bring the flour"
prints "  INVITE sip:ren%C3%A9e@xn--mhle-0ra.example;transport=tcp SIP/2.0"
prints "  Content-Length: 116"
prints "  m=audio 49172 RTP/AVP 0"
prints "    display name  Tomás"
prints_in_order "  Via 1 of 2
    host          gate.example.net
  Via 2 of 2
    host          [2001:db8::17]"

# Every kind that the message holds: the elements of lists one by one, and what does not decode.
{
    printf 'REGISTER sip:a SIP/2.0\r\n'
    printf '%s\r\n' 'm: "A, B" <sip:a>;q=0.5;expires=60;x="1, 2", bad' 'Supported: timer, 100rel' 'Contact: <sip:b>' \
        'Record-Route: Ü <sip:a;lr>;x, <sip:b;lr>' 'Expires: never' 'Accept:' 'Warning: 399 a:5060 "t"' 'Event: presence;id=1'
    printf '\r\n'
} >"$scratch/lists"

printf 'SIP/2.0 200 %%1B[2J\r\nX: a\302\233b\r\n\r\n\377' >"$scratch/steers_terminal"
for file in - "$scratch/steers_terminal"; do
    expect 0 "$decode" "$file" <"$scratch/steers_terminal"
    prints '  phrase   \x1b[2J'
    prints '    a\xc2\x9bb'
    prints '  \xff'
done

for garbage in 'hello' 'OPTIONS sip:a SIP/2.0\nVia: a\n\n' 'BYE sip:a SIP/2.0\r\nContent-Length: 9\r\n\r\n'; do
    printf "$garbage" >"$scratch/garbage"
    expect 1 "$decode" "$scratch/garbage"
    one_complaint
done
for unreadable in "$scratch" "$scratch/missing"; do
    expect 1 "$decode" "$unreadable"
    one_complaint
done

two='OPTIONS sip:a SIP/2.0\r\nContent-Length: 5\r\n\r\nhello\r\nSIP/2.0 404 Nobody here\r\nl: 0\r\n\r\n'
printf "$two" >"$scratch/two"
expect 0 "$stream" <"$scratch/two"
prints "message 1"
prints "  method   OPTIONS"
prints "  5 bytes"
prints "message 2"
prints "  phrase   Nobody here"

for rest in 'SIP/2.0 200 OK\r\n' 'SIP/2.0 200 OK\r\n\r\n' 'Via: a\r\nl: 0\r\n\r\n'; do
    printf "$two$rest" >"$scratch/rest"
    expect 1 "$stream" <"$scratch/rest"
    prints "message 2"
    [ "$( wc -l <"$scratch/err" )" = 1 ] || fail "that is not one line of error"
done
