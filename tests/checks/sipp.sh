#!/usr/bin/env bash
# SIPp calls the example answer: many calls by UDP and TCP, abandoned calls, OPTIONS, REGISTER. Then come bytes that are
# not SIP, and answer still answers. With a password it lets SIPp, baresip and the example call in, and nobody else.
# usage: sipp.sh ANSWER CALL ROOT      exits with 77 where there is no sipp
set -euo pipefail

command -v sipp >/dev/null || { echo "skipped: there is no sipp, which Debian's sip-tester has"; exit 77; }

answer=$1 call=$2 scenarios=$3/tests/sipp corpus=$3/fuzz/corpus
calls=2000 rate=100
scratch=$( mktemp -d )
trap '[ -z "${pid-}" ] || kill "$pid"; rm -rf "$scratch"' EXIT
cd "$scratch"

fail() { echo "$1"; tail -n 20 ./*.err | cut -c 1-1000; exit 1; }

# start MILLISECONDS ARGUMENT...: an answer with these arguments that lets calls ring for so long, at $port.
start()
{
    : >out
    "$answer" --port 0 --ring "$@" >out 2>answer.err &
    pid=$!
    for (( i = 0; i < 200; i++ )); do
        read -r _ _ _ port <out && return || sleep 0.1
    done
    fail "answer doesn't start"
}

# It ends well: nothing has stopped it, and a sanitizer has nothing to report.
stop()
{
    kill "$pid"
    wait "$pid" || fail "answer exits with $?"
    pid=
    [ ! -s answer.err ] || fail "answer complains"
}

# use NAME TRANSPORT ARGUMENT...: sipp does what the arguments say and counts in NAME.csv; all its calls succeed.
use()
{
    sipp "127.0.0.1:$port" -i 127.0.0.1 -t "$2" -nostdin -rtcheck loose -timeout 90 -timeout_error "${@:3}" \
        -trace_err -error_file "$1.err" -trace_stat -stf "$1.csv" -fd 1 >"$1.screen" 2>&1 ||
        { echo "sipp exits with $? ($1)"; grep -aE -- '(-->|<--)' "$1.screen" | tail -n 12; return 1; }
    [ "$( counted "$1" 'FailedCall(C)' )" = 0 ] || { echo "calls fail ($1)"; return 1; }
}
counted()
{
    awk -F ';' -v name="$2" 'NR == 1 { for( i = 1; i <= NF; ++i ) if( $i == name ) at = i } END { print $at }' "$1.csv"
}

# Over a connection sipp sends nothing twice. With datagrams it does so after half a second, on a busy machine also when
# all is well; but a response that it can't use costs it one copy of each request at least.
many_calls()
{
    local good=true again_udp again_tcp
    use udp u1 -sn uac -m $calls -r $rate -l $calls & local udp=$!
    use tcp t1 -sn uac -m $calls -r $rate -l $calls || good=false
    wait $udp || good=false
    again_udp=$( counted udp 'Retransmissions(C)' ) again_tcp=$( counted tcp 'Retransmissions(C)' )
    echo "$calls calls each: sent again by UDP $again_udp, by TCP $again_tcp"
    $good && [ "$again_tcp" = 0 ] && (( again_udp < calls / 4 ))
}

# ask LINE HEADER...: sends a request and prints what comes back within five seconds. Variables say more: by, the transport, udp
# unless told; to and id, its To and Call-ID; sent_by, in Via; open, if descriptor 3 is to be used and stays open.
ask()
{
    printf '%s\r\n' "$1" "Via: SIP/2.0/UDP ${sent_by-a.example};branch=z9hG4bK$( date +%s%N );rport" \
        'f: <sip:a@a.example>;tag=1' "t: ${to-"B" <sip:b@b.example>}" "i: ${id-1@a.example}" "${@:2}" '' >request
    [ "${open-}" ] || exec 3<>"/dev/${by-udp}/127.0.0.1/$port"
    cat request >&3
    timeout 5 dd bs=65536 count=1 status=none <&3 | tr -d '\r'
    [ "${open-}" ] || exec 3>&-
}
expect()
{
    local got request="${*:2}"
    got=$( ask "${@:2}" | head -n 1 )
    [ "$got" = "SIP/2.0 $1" ] || fail "to ${request:0:300} it says '$got', not $1"
}

# bound NUMBER HEADER...: the contacts that are bound when the REGISTER with these headers has been answered.
bound() { ask 'REGISTER sip:b SIP/2.0' "CSeq: $1 REGISTER" "${@:2}" | sed -n 's/^Contact: \(<.*>\).*/\1/p' | tr -d '\n'; }

# send udp|tcp FILE: a datagram or a connection with these bytes, whether or not the other side reads all of them.
send() { cat "$2" >"/dev/$1/127.0.0.1/$port" || true; } 2>/dev/null

broken_messages()
{
    local i fd length
    for file in "$corpus"/{datagram,stream,headers}/*; do
        send udp "$file"
        send tcp "$file"
    done
    # An INVITE that ends anywhere or has a bad byte anywhere.
    printf '%s\r\n' 'INVITE sip:b@b.example SIP/2.0' 'v: SIP/2.0/UDP a;branch=z9hG4bK2' 'f: <sip:a@a>;tag=1' 't: <sip:b@b>' \
        'i: 2' 'CSeq: 1 INVITE' 'm: <sip:a@a>;expires=1' '' >invite
    length=$( wc -c <invite )
    for (( i = 1; i < length; i += 2 )); do
        head -c "$i" invite >broken
        send udp broken
        { printf '\xff'; tail -c "+$(( i + 2 ))" invite; } >>broken
        send udp broken
    done
    head -c 60000 /dev/urandom >noise
    send udp noise
    head -c 1000000 /dev/zero | tr '\0' a >endless
    send tcp endless
    # More connections than it holds, each with half a message; they stay open, and so does one with a whole one.
    exec 3<>"/dev/tcp/127.0.0.1/$port"
    open=3 expect '200 OK' 'OPTIONS sip:b SIP/2.0' 'CSeq: 1 OPTIONS' 'l: 0'
    for (( i = 0; i < 300; i++ )); do
        exec {fd}<>"/dev/tcp/127.0.0.1/$port"
        printf 'INVITE sip:b@b SIP/2.0\r\nl: 9999999999\r\n\r\nx' >&"$fd"
    done
    open=3 expect '200 OK' 'OPTIONS sip:b SIP/2.0' 'CSeq: 1 OPTIONS' 'l: 0'
    exec 3>&-
}

# nonce: that of a new challenge. claim NONCE COUNT PASSWORD: a header that answers it.
nonce() { ask 'REGISTER sip:b SIP/2.0' 'CSeq: 1 REGISTER' | sed -n 's/.*nonce="\([^"]*\)".*SHA-256.*/\1/p'; }
hash() { printf '%s' "$1" | sha256sum | cut -d ' ' -f 1; }
claim()
{
    echo "Authorization: Digest username=\"alice\", realm=\"answer\", nonce=\"$1\", uri=\"sip:b\", algorithm=SHA-256, qop=auth," \
        "nc=$2, cnonce=\"c\", response=\"$( hash "$( hash "alice:answer:$3" ):$1:$2:c:auth:$( hash REGISTER:sip:b )" )\""
}
# is STATUS NONCE COUNT PASSWORD: what the registrar says to that; "stale" after the status says that there is a new nonce.
is()
{
    local got
    got=$( ask 'REGISTER sip:b SIP/2.0' 'CSeq: 1 REGISTER' "$( claim "${@:2}" )" |
        sed -n 's/^SIP.2.0 \([0-9]*\).*/\1/p; s/.*, stale=true, .*MD5.*/stale/p' | paste -sd ' ' )
    [ "$got" = "$1" ] || fail "to the count $3 and the password $4 the registrar says '$got', not $1"
}

# registers PASSWORD: whether baresip registers with it within three seconds.
registers()
{
    local modules
    modules=$( find /usr/lib /usr/local/lib -type d -path '*baresip/modules' | head -n 1 )
    mkdir "baresip-$1"
    printf '%s\n' 'sip_listen 127.0.0.1:0' "module_path $modules" 'module account.so' 'module_app menu.so' >"baresip-$1/config"
    echo "<sip:alice@127.0.0.1:$port>;auth_user=alice;auth_pass=$1" >"baresip-$1/accounts"
    touch "baresip-$1/contacts"
    timeout 30 baresip -f "baresip-$1" -t 3 >"baresip-$1.err" 2>&1 || true
    grep -q '200 OK' "baresip-$1.err"
}

passwords()
{
    local first wrong right
    start 100 --user alice --password secret
    [ "$( ask 'INVITE sip:b SIP/2.0' 'CSeq: 1 INVITE' | sed -n 's/^Www-Auth.*algorithm=\([^,]*\).*/\1/p' | paste -sd ' ' )" = 'SHA-256 MD5' ] ||
        fail "the challenges differ"
    first=$( nonce )
    is 200 "$first" 00000001 secret
    exec 3<>"/dev/udp/127.0.0.1/$port"
    cat request >&3
    grep -q '^SIP/2.0 200' < <( timeout 5 dd bs=65536 count=1 status=none <&3 ) || fail "a copy of a request is refused"
    is '401 stale' "$first" 00000001 secret
    is 200 "$first" 00000003 secret
    is 200 "$first" 00000002 secret
    is 401 "$first" 00000004 wrong
    is '401 stale' "${first/-/-1}" 00000004 secret
    expect '481 Call leg/transaction does not exist' 'BYE sip:b SIP/2.0' 'CSeq: 1 BYE'
    "$call" --user alice --password secret 127.0.0.1 "$port" >call.out 2>call.err || fail "call does not get through"
    ! "$call" --user alice --password wrong 127.0.0.1 "$port" >call.out 2>&1 || fail "call gets through with a wrong password"
    [ "$( grep -ac '^Authorization' call.out )" = 1 ] || fail "call does not try once"
    stop

    start 100 --user alice --password secret --stale 0
    is '401 stale' "$( nonce )" 00000001 secret
    stop

    # Neither of these goes past a challenge for SHA-256 to the one for MD5.
    start 100 --user alice --password secret --algorithm MD5
    for transport in u1 t1; do
        use "password-$transport" "$transport" -sf "$scenarios/password.xml" -m 20 -r 20 -au alice -ap secret || fail "a password"
    done
    ! use wrong u1 -sf "$scenarios/password.xml" -m 1 -au alice -ap wrong >/dev/null || fail "a wrong password gets through"
    if command -v baresip >/dev/null; then
        registers wrong & wrong=$!
        registers secret & right=$!
        ! wait $wrong || fail "baresip registers with a wrong password"
        wait $right || fail "baresip does not register"
    else
        echo "not checked: that baresip registers with a password, for there is no baresip"
    fi
    stop
}

start 100
many_calls || { echo "once more"; many_calls; } || fail "calls fail, or their responses are bad"

for transport in u1 t1; do
    use "options-$transport" "$transport" -sf "$scenarios/options.xml" -m 20 -r 20 || fail "OPTIONS"
    use "register-$transport" "$transport" -sf "$scenarios/register.xml" -m 20 -r 20 || fail "REGISTER"
    use "dialog-$transport" "$transport" -sf "$scenarios/dialog.xml" -m 20 -r 20 || fail "what belongs to a dialog"
done

# The caller's connection is gone before the 200, which comes by a new one.
use late t1 -sf "$scenarios/late.xml" -p $(( port + 1 )) -m 1 & late=$!
sleep 1
id=2@a.example sent_by=127.0.0.1:$(( port + 1 )) by=tcp expect '100 Trying' 'INVITE sip:b SIP/2.0' 'CSeq: 1 INVITE' 'l: 0'
wait $late || fail "a response gets lost with its connection"

ask 'OPTIONS sip:b@b.example SIP/2.0' 'CSeq: 7 OPTIONS' |
    sed -E 's/rport=[0-9]+/rport=1/; s/tag=[0-9]+-[0-9]+/tag=2/; s/z9hG4bK[0-9]+/z9hG4bK1/; s/ $//' |
    diff - <( cat <<'RESPONSE'
SIP/2.0 200 OK
Via: SIP/2.0/UDP a.example;received=127.0.0.1;rport=1;branch=z9hG4bK1
From: <sip:a@a.example>;tag=1
To: "B" <sip:b@b.example>;tag=2
Call-Id: 1@a.example
Cseq: 7 OPTIONS
Allow: INVITE,ACK,CANCEL,BYE,OPTIONS,REGISTER
Supported:
Accept: application/sdp
Accept-Encoding: identity
Accept-Language: en
Content-Length: 0

RESPONSE
    ) || fail "the response to OPTIONS differs"
expect '405 Method not allowed' 'PUBLISH sip:b SIP/2.0' 'CSeq: 1 PUBLISH'
expect '481 Call leg/transaction does not exist' 'CANCEL sip:b SIP/2.0' 'CSeq: 1 CANCEL'
expect '481 Call leg/transaction does not exist' 'BYE sip:b SIP/2.0' 'CSeq: 1 BYE'
to='<sip:b>;tag=2' expect '481 Call leg/transaction does not exist' 'OPTIONS sip:b SIP/2.0' 'CSeq: 1 OPTIONS'
expect '420 Bad extension' 'INVITE sip:b SIP/2.0' 'CSeq: 1 INVITE' 'Require: 100rel'
expect '200 OK' 'OPTIONS sip:b SIP/2.0' 'CSeq: 1 OPTIONS' 'Require:'
expect '416 Unsupported URI scheme' 'INVITE tel:+1 SIP/2.0' 'CSeq: 1 INVITE'
expect '415 Unsupported media type' 'INVITE sip:b SIP/2.0' 'CSeq: 1 INVITE' 'c: text/plain' '' 'v=0'
expect '400 Bad request' 'INVITE sip:b SIP/2.0' 'CSeq: 1 INVITE' 'c: application/sdp' '' 'v=0' 't=0 0' 'm=audio 1 RTP/AVP'
expect '400 Bad request' 'OPTIONS sip:b SIP/2.0' 'CSeq: 2147483648 OPTIONS'
expect '400 Bad request' 'OPTIONS sip:b SIP/2.0' 'CSeq: 1 BYE'
for header in 'To: <sip:c>' 'CSeq: 1 OPTIONS' 'l: 9' 'no header' $'x: a\nb'; do
    expect '400 Bad request' 'OPTIONS sip:b SIP/2.0' 'CSeq: 1 OPTIONS' "$header"
done
expect '415 Unsupported media type' 'INVITE sip:b SIP/2.0' 'CSeq: 1 INVITE' 'e: identity, gzip'
expect '406 Not acceptable' 'INVITE sip:b SIP/2.0' 'CSeq: 1 INVITE' 'Accept: text/plain, application/sdp;q=0'
expect '200 OK' 'OPTIONS sip:b SIP/2.0' 'CSeq: 1 OPTIONS' 'Accept: text/plain, application/*'
for media in 'video 1 RTP/AVP 0' 'audio 1 RTP/SAVP 0' 'audio 1 RTP/AVP 18 101'; do
    expect '488 Not acceptable here' 'INVITE sip:b SIP/2.0' 'CSeq: 1 INVITE' 'c: application/sdp' '' 'v=0' 't=0 0' "m=$media" \
        'a=rtpmap:101 telephone-event/8000'
done
# What is too long says so; the longest message is not.
for by in udp tcp; do
    expect '200 OK' 'OPTIONS sip:b SIP/2.0' 'CSeq: 1 OPTIONS' "x: $( printf '%65000s' )" 'l: 0'
done
expect '513 Message too large' 'OPTIONS sip:b SIP/2.0' 'CSeq: 1 OPTIONS' "x: $( printf '%66000s' )" 'l: 0'
expect '400 Bad request' 'OPTIONS sip:b SIP/2.0' 'CSeq: 1 OPTIONS' # without Content-Length
unset by
expect '400 Bad request' 'REGISTER sip:b SIP/2.0' 'CSeq: 1 REGISTER' 'Contact: <sip:a>, <sip:b'
expect '505 SIP version not supported' 'OPTIONS sip:b SIP/3.0' 'CSeq: 1 OPTIONS'
[ "$( bound 2 'm: <sip:d>, <sip:c>' ) $( bound 3 'm: <sip:C;x=y>;expires=0' ) $( bound 4 )" = \
    '<sip:d><sip:c> <sip:d> <sip:d>' ] || fail "REGISTER binds other contacts than told"
# A request that another one has overtaken (RFC 3261, 10.3) takes nothing away; one of another Call-ID may.
for late in 'm: <sip:d>;expires=0' 'm: *'; do
    expect '500 Internal server error' 'REGISTER sip:b SIP/2.0' 'CSeq: 1 REGISTER' "$late" 'Expires: 0'
done
[ "$( to='<sip:%62@B.Example;x=y>' bound 4 ) $( id=2 bound 1 'm: *' 'Expires: 0' )" = '<sip:d> ' ] || fail "REGISTER takes away what it should not"
# A forger can't have much sent to somebody else, and one sender can't take the places of others.
long=$( printf '%0190d' 0 )
expect '403 Forbidden' 'REGISTER sip:b SIP/2.0' 'CSeq: 1 REGISTER' "m: <sip:${long}12345678>"
expect '503 Service unavailable' 'REGISTER sip:b SIP/2.0' 'CSeq: 1 REGISTER' 'm: <sip:1>, <sip:2>, <sip:3>, <sip:4>, <sip:5>, <sip:6>'
expect '200 OK' 'REGISTER sip:b SIP/2.0' 'CSeq: 5 REGISTER' "m: <sip:$long"{1,2,3,4,5}'>'
expect '500 Internal server error' 'REGISTER sip:b SIP/2.0' 'CSeq: 6 REGISTER'
by=tcp expect '200 OK' 'REGISTER sip:b SIP/2.0' 'CSeq: 6 REGISTER' 'l: 0'
use others u1 -sf "$scenarios/bind.xml" -i 127.0.0.2 -m 1 -s other || fail "REGISTER from another address"
use flood u1 -sf "$scenarios/bind.xml" -m 1001 -r 1000 -s flood || fail "REGISTER from one address"
[ "$( for who in b@b.example flood1 flood1001 other1; do to="<sip:$who>" bound 9; done )" = '<sip:flood1001><sip:other1>' ] ||
    fail "not the oldest bindings of the same sender have given way"

broken_messages
for transport in u1 t1; do
    use "after-$transport" "$transport" -sf "$scenarios/options.xml" -m 1 || fail "answer has stopped answering"
done
stop

start 60000
for transport in u1 t1; do
    use "cancel-$transport" "$transport" -sf "$scenarios/cancel.xml" -m 20 -r 20 || fail "CANCEL"
done
stop

passwords
