#!/usr/bin/env bash
# The examples do what they promise, on good and bad input.
# usage: run_examples.sh DECODE STREAM HOP CALL KINDS     where KINDS is telsx_headers.def
set -euo pipefail

scratch=$( mktemp -d )
trap 'rm -rf "$scratch"' EXIT

# expect STATUS COMMAND...: runs it and keeps what it prints, without CR, in $scratch/out and $scratch/err.
expect()
{
    local status=0
    "${@:2}" >"$scratch/bytes" 2>"$scratch/err" || status=$?
    tr -d '\r' <"$scratch/bytes" >"$scratch/out"
    [ $status = "$1" ] || fail "${*:2} exits with $status instead of $1"
}
fail() { echo "$1"; cat "$scratch/out" "$scratch/err"; exit 1; }
prints() { grep -qxF -- "$1" "$scratch/out" || fail "nothing prints: $1"; }
prints_nothing_like() { ! grep -q -- "$1" "$scratch/out" || fail "something prints: $1"; }
# The lines of the text occur in this order, each as often as here, whatever is between them.
prints_in_order() { diff <( grep -xF -- "$1" "$scratch/out" ) - <<<"$1" || fail "the lines above differ"; }
one_complaint() { [ "$( wc -l <"$scratch/err" )" = 1 ] && [ ! -s "$scratch/out" ] || fail "that is not one line of error"; }

decode=$1 stream=$2 hop=$3 call=$4 kinds=$5

expect 0 "$decode"
prints "  target   sip:renée@mühle.example;transport=tcp"
prints "    subject           The mill, and who is to bring the flour"
prints "  INVITE sip:ren%C3%A9e@xn--mhle-0ra.example;transport=tcp SIP/2.0"
prints "  Content-Length: 116"
prints "  m=audio 49172 RTP/AVP 0"
prints "    display name      Tomás"
prints_in_order "\
  Via 1 of 2
    host              gate.example.net
  Via 2 of 2
    host              [2001:db8::17]"

# The elements of lists one by one, and what does not decode; then every kind at once.
printf '%s\r\n' 'REGISTER sip:a SIP/2.0' 'm: "A, B" <sip:a;lr?b>;q=0.5;x="1, 2"' 'k: timer, 100rel' 'm: sip:b' 'm: <tel:+1;ext=2>' 'Expires: never' \
    'Accept:' 'Event: dialog;id=1' 'v: SIP/2.0/UDP a, SIP/2.0/UDP a:99999999999999999999' '' >"$scratch/typed"
expect 0 "$decode" "$scratch/typed"
typed=$( sed '1,/^typed$/d; /^encoded$/,$d' "$scratch/out" )
diff - <( echo "$typed" ) <<'END' || fail "the typed reading differs"
  Accept is empty
  Contact 1 of 3
    iri               sip:a;lr?b
      host            a
      lr              yes
      header          b
    display name      A, B
    qvalue            0.500
    parameter         x=1, 2
  Contact 2 of 3
    iri               sip:b
      host            b
  Contact 3 of 3
    iri               tel:+1;ext=2
      number          +1
      extension       2
  Event
    event type        dialog
    id                1
  Expires does not decode
  Supported
    timer
    100rel
  Via 1 of 2
    version           SIP/2.0
    transport         udp
    host              a
  Via 2 of 2 does not decode
END
printf 'REGISTER sip:a SIP/2.0\r\nm: *\r\n\r\n' >"$scratch/star"
expect 0 "$decode" "$scratch/star"
prints_in_order $'  Contact\n    *\n  Contact\n    *'
names=$( sed -nE 's/^TELSX_KIND.*"(.*)".*/\1/p' "$kinds" )
{ printf 'REGISTER sip:a SIP/2.0\r\n'; printf '%s: ;\r\n' $names; printf '\r\n'; } >"$scratch/all"
expect 0 "$decode" "$scratch/all"
diff <( sed '1,/^typed$/d; /^encoded$/,$d; /^    /d; s/^  //; s/ .*//' "$scratch/out" ) - <<<"$names" || fail "kinds are missing"

printf 'SIP/2.0 200 %%1B[2J\r\nX: a\302\233b\342\200\256c\r\n\r\n\377' >"$scratch/steers_terminal"
for file in - "$scratch/steers_terminal"; do
    expect 0 "$decode" "$file" <"$scratch/steers_terminal"
    prints '  phrase   \x1b[2J'
    prints '    a\xc2\x9bb\xe2\x80\xaec'
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
# A message without an end: it stops long before the input does.
head -c 1000000 /dev/zero | tr '\0' a >"$scratch/endless"
expect 1 "$stream" <"$scratch/endless"
grep -qx 'stream: message 1 has more than 65536 bytes' "$scratch/err" || fail "nothing tells that the message is too long"
! "$stream" <"$scratch/two" >/dev/full 2>/dev/null || fail "stream doesn't see that it can't write"

# request LINE HEADER...: a request with what hop needs and these headers.
request()
{
    printf '%s\r\n' "$1 SIP/2.0" 'Via: SIP/2.0/TCP 192.0.2.1;branch=z9hG4bK1' 'From: <sip:a@a>;tag=1' 'To: <sip:b@b>' \
        'Call-ID: 1' "CSeq: 1 ${1%% *}" "${@:2}" ''
}
hops() { request "$@" >"$scratch/request"; expect 0 "$hop" --source 192.0.2.1 5060 "$scratch/request"; }

expect 0 "$hop"
grep -qx '    branch            z9hG4bK87asdks7' "$scratch/err" || fail "nothing tells what hop reads"
prints "Via: SIP/2.0/UDP pc33.example.net:5060;received=192.0.2.4;rport=49172;branch=z9hG4bK87asdks7"
prints "Route: <sip:gate.mill.example;lr>"
prints "Max-Forwards: 69"
cp "$scratch/bytes" "$scratch/once"
expect 0 "$hop" --host '[2001:DB8::1]' --source 2001:db8::2 5060 "$scratch/once"
diff <( sed -nE 's/^(Via|Record-Route|Max-Forwards): ([^;]*).*/\1 \2/p' "$scratch/out" ) - <<'END' || fail "two hops differ"
Via SIP/2.0/UDP [2001:db8::1]
Via SIP/2.0/UDP proxy.example.com
Via SIP/2.0/UDP pc33.example.net:5060
Max-Forwards 68
Record-Route <sip:[2001:db8::1]
Record-Route <sip:proxy.example.com
END
cp "$scratch/bytes" "$scratch/twice"
"$hop" 2>/dev/null | "$hop" --host '[2001:db8::1]' --source 2001:db8::2 5060 - 2>/dev/null | diff "$scratch/twice" - ||
    fail "the same request does not make the same"

# Routes: loose ones, a strict router before the proxy, one after it.
hops 'INVITE sip:b@b' 'Route: <sip:PROXY.example.com:5070;x=1;lr?y=2>'
prints "INVITE sip:b@b SIP/2.0"
prints "Max-Forwards: 70"
prints_nothing_like '^Route'
prints_nothing_like 'received'
hops 'INVITE sip:b@b' 'Route: <sip:proxy.example.com@c;lr>'
prints "Route: <sip:proxy.example.com@c;lr>"
hops 'INVITE sip:proxy.example.com;lr' 'Route: <sip:c;lr>, <sips:b@b>'
prints "INVITE sips:b@b SIP/2.0"
prints "Route: <sip:c;lr>"
prints "Record-Route: <sips:proxy.example.com;lr>"
hops 'INVITE sip:b@b' 'Route: <sip:proxy.example.com;lr>, <sip:c>, <sip:d;lr>'
prints "INVITE sip:c SIP/2.0"
prints_in_order "\
Route: <sip:d;lr>
Route: <sip:b@b>"

# What the proxy writes itself: its Via depends on the next address, and nobody tells it where a request came from.
hops 'REGISTER sip:b' 'Route: <sip:proxy.example.com;lr>, <sip:c;transport=TCP;lr>'
grep -q '^Via: SIP/2.0/TCP proxy' "$scratch/out" || fail "the Via is not for the next address"
prints_nothing_like '^Record-Route'
request 'INVITE sips:b@b' 'Route: <sip:[2001:DB8:0::1];lr>' | sed 's/192.0.2.1/&;received=203.0.113.9;rport=7/' >"$scratch/forged"
expect 0 "$hop" --host '[2001:db8::1]' --source 192.0.2.1 5060 "$scratch/forged"
prints 'Via: SIP/2.0/TCP 192.0.2.1;branch=z9hG4bK1'
grep -q '^Via: SIP/2.0/TLS' "$scratch/out" || fail "a secure target goes out without TLS"
prints_nothing_like '^Route'
hops 'INVITE sip:b@b' 'Proxy-Require: foo, Bar'
prints "SIP/2.0 420 Bad extension"
prints "Unsupported: foo,bar"

hops 'INVITE sip:b@b' 'Max-Forwards: 0'
prints "SIP/2.0 483 Too many hops"
prints "Via: SIP/2.0/TCP 192.0.2.1;branch=z9hG4bK1"
grep -q '^To: <sip:b@b>;tag=' "$scratch/out" || fail "there is no tag in To"
prints_nothing_like '^Record-Route'

# A line feed alone hides a header from the proxy, though not from all others.
hops 'INVITE sip:b@b' $'Subject: a\nRoute: <sip:c>'
prints "SIP/2.0 400 Bad request"

printf 'SIP/2.0 200 OK\r\n\r\n' >"$scratch/bad0"
request 'ACK sip:b@b' 'Max-Forwards: 0' >"$scratch/bad1"
request 'BYE sip:b@b' 'Max-Forwards: x' >"$scratch/bad2"
request 'BYE sip:b@b' 'Route: x' >"$scratch/bad3"
request 'BYE sip:b@b' 'Record-Route: x' >"$scratch/bad4"
request 'BYE sip:b@b' | grep -v '^Call-ID' >"$scratch/bad5"
request 'BYE sip:b@b' | sed 's/192.0.2.1/&:99999999999999999999/' >"$scratch/bad6"
request 'ACK sip:b@b' $'Subject: a\rb' >"$scratch/bad7"
request 'BYE sip:b@b' $'From: a\nb' 'From: <sip:a>' >"$scratch/bad8"
for bad in "$scratch"/bad? "$scratch/garbage" "$scratch/missing"; do
    expect 1 "$hop" "$bad"
    one_complaint
done
for usage in '--host a..b' '--source a 1' '--source ::1 65536' '--source ::1' '-x'; do
    expect 2 "$hop" $usage
    one_complaint
done

expect 0 "$call"
prints_in_order "\
INVITE sip:bob@xn--mhle-0ra.example SIP/2.0
Cseq: 1 INVITE
Supported: timer
SIP/2.0 200 OK
Record-Route: <sip:proxy.xn--mhle-0ra.example;lr>
To: \"Bob Bürger\" <sip:bob@xn--mhle-0ra.example>;tag=314159
Cseq: 1 INVITE
Supported: timer
ACK sip:bob@192.0.2.4 SIP/2.0
Cseq: 1 ACK
Route: <sip:proxy.xn--mhle-0ra.example;lr>
To: \"Bob Bürger\" <sip:bob@xn--mhle-0ra.example>;tag=314159
BYE sip:bob@192.0.2.4 SIP/2.0
Cseq: 2 BYE
Route: <sip:proxy.xn--mhle-0ra.example;lr>
To: \"Bob Bürger\" <sip:bob@xn--mhle-0ra.example>;tag=314159"
cp "$scratch/bytes" "$scratch/stream"
expect 0 "$stream" <"$scratch/stream"
prints "message 4"
