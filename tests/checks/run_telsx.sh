#!/usr/bin/env bash
# The program telsx reads messages in files and captures, shows findings at their places, and survives what is hostile.
# usage: run_telsx.sh TELSX DECODE ROOT
set -euo pipefail

telsx=$1 decode=$2 root=$3
scratch=$( mktemp -d )
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"

fail() { echo "$1"; cat -v out err; exit 1; }

# expect STATUS ARGUMENT...: runs telsx and keeps what it prints in out and err. Nothing controls the terminal.
expect()
{
    local status=0
    "$telsx" "${@:2}" >out 2>err || status=$?
    [ $status = "$1" ] || fail "telsx ${*:2} exits with $status instead of $1"
    ! grep -q $'[\x01-\x08\x0b-\x1f\x7f]' out err || fail "telsx ${*:2} prints control characters"
}
# Takes the words out of findings, which the tests of the library know.
shorten() { sed -i 's/: \(error\|warning\|remark\): .* \[/: \1 [/' out; }
prints() { diff -u --label expected - --label printed out || fail "the lines above differ"; }

# number WIDTH NUMBER: a number in so many bytes, in the order of the network.
number() { local i; for (( i = $1 - 1; i >= 0; i-- )); do printf "\\x$( printf %02x $(( $2 >> 8 * i & 255 )) )"; done; }
size() { wc -c <"$1"; }

# These write a packet with what a file holds: udp FILE [PORT], tcp FILE NUMBER FLAGS, v4 PROTOCOL FILE [ID FRAGMENT],
# v6 PROTOCOL FILE, vlan FILE.
udp() { number 2 9; number 2 "${2-5060}"; number 2 $(( 8 + $( size "$1" ) )); number 2 0; cat "$1"; }
tcp() { number 2 9; number 2 5060; number 4 "$2"; number 4 0; number 1 80; number 1 "$3"; number 6 0; cat "$1"; }
v4()
{
    number 2 17664; number 2 $(( 20 + $( size "$2" ) )); number 2 "${3-0}"; number 2 "${4-0}"; number 1 64; number 1 "$1"
    number 2 0; number 4 167772161; number 4 167772162; cat "$2"
}
v6() { number 4 1610612736; number 2 "$( size "$2" )"; number 1 "$1"; number 1 64; number 8 0; number 8 1; number 8 0; number 8 2; cat "$2"; }
vlan() { number 12 0; number 4 2164260869; number 2 34525; cat "$1"; }
# capture LINK; record FILE [LENGTH]: the head of a capture, a packet in it that once had this length. The time is that of
# the first day of 2026.
capture() { number 4 2712847316; number 4 131076; number 8 0; number 4 65535; number 4 "$1"; }
record() { number 4 1767225600; number 4 5; number 4 "$( size "$1" )"; number 4 "${2-$( size "$1" )}"; cat "$1"; }

good=$root/bench/messages/invite.sip
expect 0 check "$good" "$root/bench/messages/ok.sip"
prints </dev/null
expect 0 decode - <"$good"
diff <( "$decode" "$good" ) <( sed '1d; $d' out ) || fail "decode and examples/decode differ"

# A file of messages: places count through all of it.
{ sed 's|UDP 203[^;]*|UDP |' "$good"; printf '\r\n'; sed 's/^CSeq: .*\r/CSeq: 1 BYE\r/; s/^\(From: .\)Dora/\1\x1b[2J€\xcc\x81/' "$good"; } >two
expect 1 check two
shorten
prints <<'END'
two:2:18: warning [via-host]
    2 | Via: SIP/2.0/UDP ;branch=z9hG4bKd3c0b1a7f2e45
      |                  ^
two:37:9: remark [cseq-method]
   37 | CSeq: 1 BYE
      |         ^
END
# What is silenced doesn't count, but doesn't make a message readable.
expect 0 check --silence via-host --silence cseq-method two
prints </dev/null
printf 'a/b\r\n' >short
expect 0 check --summary --json --silence status-code short
grep -q '"errors":0,.*"unreadable":1,"requests":\[\],"responses":\[\]' out || fail "a silenced error makes a message readable"

# Captures: one message in all ways that it can come, with other traffic in between. Fragments and segments come in any
# order, some of them twice and overlapping.
printf '%s\r\n' 'SIP/2.0 200 OK' 'v: SIP/2.0/UDP a;branch=z9hG4bK1' 'f: <sip:a>;tag=1' 't: <sip:b>;tag=2' 'i: 1' 'CSeq: 1 BYE' \
    'c: text/plain' 'l: 3' '' >message
printf abc >>message
printf '\x80\x00GET / SIP' >other
part() { tail -c "+$(( $1 + 1 ))" message | head -c "$2" >part; echo part; }
packet() { "$@" >packet && record packet; }
segment() { tcp "$( part "$1" "$2" )" $(( 4294967290 + $1 )) 16 >data; packet v4 6 data; }
{
    capture 101
    udp message >data; packet v4 17 data; packet v6 17 data
    udp message 9 >data; packet v4 17 data
    udp other 9 >data; packet v4 17 data
    printf '\r\n\r\n' >blank; udp blank >data; packet v4 17 data
    udp message >whole
    tail -c +49 whole >part; packet v4 17 part 7 6; packet v4 17 part 7 6
    head -c 48 whole >part; packet v4 17 part 7 8192
    tcp /dev/null 4294967289 2 >data; packet v4 6 data
    segment 50 100; segment 20 40; segment 0 30; segment 0 60
    tcp message $(( 4294967290 + $( size message ) )) 17 >data; packet v4 6 data
} >ways
expect 0 check ways
expect 0 decode --json ways
sed -i -E 's/.*"packet":([0-9]+),"time":"2026-01-01T00:00:00.000005Z","transport":"([^"]*)","source":"([^"]*)".*"body":\{"length":3\}.*/\1 \2 \3/' out
prints <<'END'
1 UDP 10.0.0.1:9
2 UDP [::1]:9
3 UDP 10.0.0.1:9
8 UDP 10.0.0.1:9
12 TCP 10.0.0.1:9
14 TCP 10.0.0.1:9
END
[ ! -s err ] || fail "something of a whole capture is left out"
{ capture 1; udp message >data; v6 17 data >inner; packet vlan inner; } >tagged
expect 0 check - <tagged

# A capture with what is wrong: a finding tells packet, time and sides. On a stream Content-Length must be there, and after
# bytes that are no message the next segment with one counts.
grep -v '^l:' message >endless
{
    capture 101
    tcp /dev/null 99 2 >data; packet v4 6 data
    tcp endless 100 16 >data; packet v4 6 data
    tcp other $(( 100 + $( size endless ) )) 16 >data; packet v4 6 data
    tcp message $(( 100 + $( size endless ) + $( size other ) )) 16 >data; packet v4 6 data
    udp message >data; v4 17 data >cut; head -c 60 cut >packet; record packet "$( size cut )"
} >wrong
expect 1 check --silence content-length-missing wrong
shorten
sed -i '/^ /d' out
prints <<'END'
wrong#2: 2026-01-01T00:00:00.000005Z, TCP from 10.0.0.1:9 to 10.0.0.2:5060:
wrong#2:1:1: error [content-length-stream]
wrong#2: 2026-01-01T00:00:00.000005Z, TCP from 10.0.0.1:9 to 10.0.0.2:5060:
wrong#2:1:4: error [line-end]
END
grep -qx 'telsx: wrong: left out: 1 packet that was captured only in part' err || fail "nothing tells what is left out"
expect 1 check --summary --json ways wrong
grep -q '^{"messages":9,"errors":2,.*,"unreadable":2,"requests":\[\],"responses":\[{"status":"200","messages":7}\]' out ||
    fail "the summary is wrong"
expect 1 check --summary wrong

# What is hostile to a terminal or to the program. A capture that ends anywhere is read up to there.
printf 'OPTIONS sip:a SIP/2.0\r\nSubject: \033]0;x\a\xc2\x9b\xe2\x80\xae\r\nVia: \033[2J,\x00"\\\r\nX\033[1m\r\n' >steers
for command in check "check --json" decode "decode --json" "check --summary"; do expect 1 $command steers; done
for (( i = 24; i < $( size ways ); i += 37 )); do
    head -c "$i" ways >hostile
    "$telsx" check hostile >out 2>err || [ $? = 2 ] || fail "a capture that ends after $i bytes: exits with $?"
    { head -c "$i" ways; printf '\xff\xff\xff\x7f'; tail -c "+$(( i + 5 ))" ways; } >hostile
    "$telsx" check --summary hostile >out 2>err || [ $? -le 2 ] || fail "a capture with bad bytes at $i: exits with $?"
done

# Exit statuses, and one line that says why.
: >empty
{ capture 147; record message; } >link
for arguments in "" "cheque $good" check "check --jsno $good" "check --port 65536 $good" "check --silence" \
    "decode --summary $good" "check missing" "check ." "check empty" "check link"; do
    expect 2 $arguments
    [ ! -s out ] && grep -q '^telsx: ' err || fail "telsx $arguments doesn't say what is wrong"
done
expect 2 check missing two
grep -q via-host out || fail "a file after one that is missing is not checked"
for option in --help --version; do expect 0 $option; done
! "$telsx" decode "$good" >/dev/full 2>err || fail "telsx doesn't see that it can't write"
