# From the names of all families and lines of family, n, what is counted and the count, with tabs between, to a table in
# Markdown: the cost for one of the n, and the slope on log-log paper. With -v svg=FILE to a picture too. Ends with 1 if
# a slope is above 1.1.
BEGIN {
    FS = "\t"
    phases = split( "decode,typed,encode,release,memory", phase, "," )
    split( "Decode,Typed decode,Encode,Release,Memory", title, "," )
}

NF == 1 { family[++families] = $1 }

NF == 4 {
    key = $1 FS $3
    count[key, $2] = $4
    if ( $2 > longest[key] ) longest[key] = $2
    if ( $3 == "decode" ) lengths[$2]
    if ( $2 > most ) most = $2
    if ( !least || $2 < least ) least = $2
    x = log( $2 ); y = log( $4 )
    points[key]++; sumX[key] += x; sumY[key] += y; sumXX[key] += x * x; sumXY[key] += x * y
}

# Of the straight line that fits best.
function slope( key )
{
    return ( points[key] * sumXY[key] - sumX[key] * sumY[key] ) / ( points[key] * sumXX[key] - sumX[key] ^ 2 )
}

function rounded( value ) { return sprintf( value < 9.95 ? "%.1f" : "%.0f", value ) }

END {
    printf "| what stands n times"
    for ( p = 1; p <= phases; ++p ) printf " | %s", tolower( title[p] )
    print " |"
    print "|---|---:|---:|---:|---:|---:|"
    for ( f = 1; f <= families; ++f ) {
        printf "| %s", family[f]
        for ( p = 1; p <= phases; ++p ) {
            key = family[f] FS phase[p]
            if ( points[key] < 2 ) { failed = failed "\nnot measured: " key; continue }
            if ( slope( key ) > 1.1 ) failed = failed sprintf( "\ngrows with a slope of %.2f: %s", slope( key ), key )
            printf " | %s (%.2f)", rounded( count[key, longest[key]] / longest[key] ), slope( key )
        }
        print " |"
    }
    if ( svg ) draw()
    if ( failed || !families ) { print failed >"/dev/stderr"; exit 1 }
}

# The picture: five panels with logarithmic axes, a line for each family with its name at the end.

function put( text ) { print text >svg }

function text( x, y, class, words ) { put( sprintf( "<text class=\"%s\" x=\"%.1f\" y=\"%.1f\">%s</text>", class, x, y, words ) ) }

function line( x1, y1, x2, y2, class )
{
    put( sprintf( "<line class=\"%s\" x1=\"%.1f\" y1=\"%.1f\" x2=\"%.1f\" y2=\"%.1f\"/>", class, x1, y1, x2, y2 ) )
}

function atX( n ) { return left + width * log( n / least ) / log( most / least ) }
function atY( value ) { return top + height * ( 1 - log( value / low ) / log( high / low ) ) }

function range( p,    f, n, value )
{
    low = high = 0
    for ( f = 1; f <= families; ++f )
        for ( n in lengths ) {
            value = count[family[f] FS phase[p], n]
            if ( !low || value < low ) low = value
            if ( value > high ) high = value
        }
    low = 10 ^ int( log( low ) / log( 10 ) )
    high = 10 ^ ( int( log( high ) / log( 10 ) - 1e-9 ) + 1 )
}

# The families in the order of their last points, and where each name goes: at least one line from the next.
function placeNames( p,    f, g, swap )
{
    for ( f = 1; f <= families; ++f ) order[f] = f
    for ( f = 2; f <= families; ++f )
        for ( g = f; g > 1 && lastY( order[g], p ) < lastY( order[g - 1], p ); --g ) {
            swap = order[g]; order[g] = order[g - 1]; order[g - 1] = swap
        }
    for ( f = 1; f <= families; ++f ) {
        nameY[f] = lastY( order[f], p )
        if ( f > 1 && nameY[f] < nameY[f - 1] + 13 ) nameY[f] = nameY[f - 1] + 13
    }
    swap = top + height
    for ( f = families; f >= 1; --f ) {
        if ( nameY[f] > swap ) nameY[f] = swap
        swap = nameY[f] - 13
    }
}
function lastY( f, p ) { return atY( count[family[f] FS phase[p], most] ) }

function panel( p,    value, n, f, i, points, colour )
{
    left = ( p - 1 ) % 2 * 640 + 70; top = int( ( p - 1 ) / 2 ) * 400 + 50; width = 300; height = 300
    range( p )
    text( left, top - 14, "title", title[p] ( phase[p] == "memory" ? ", bytes at most" : ", instructions" ) )
    for ( value = low; value <= high * 1.01; value *= 10 ) {
        line( left, atY( value ), left + width, atY( value ), "grid" )
        text( left - 8, atY( value ) + 4, "y", sprintf( "10<tspan dy=\"-5\" font-size=\"8\">%d</tspan>", log( value ) / log( 10 ) + 0.5 ) )
        # A line of slope 1 from there, up to the edge of the panel.
        n = most; if ( value * n / least > high ) n = least * high / value
        line( left, atY( value ), atX( n ), atY( value * n / least ), "linear" )
    }
    for ( n in lengths ) {
        line( atX( n ), top, atX( n ), top + height, "grid" )
        text( atX( n ), top + height + 16, "x", n )
    }
    placeNames( p )
    for ( i = 1; i <= families; ++i ) {
        f = order[i]
        colour = sprintf( "hsl(%d,70%%,%d%%)", i * 137.5 % 360, i % 2 ? 35 : 45 )
        points = ""
        for ( n = least; n <= most; n *= 2 )
            if ( n in lengths ) points = points sprintf( "%.1f,%.1f ", atX( n ), atY( count[family[f] FS phase[p], n] ) )
        put( sprintf( "<polyline stroke=\"%s\" points=\"%s%.1f,%.1f\"/>", colour, points, left + width + 18, nameY[i] ) )
        put( sprintf( "<text class=\"name\" fill=\"%s\" x=\"%.1f\" y=\"%.1f\">%s</text>", colour, left + width + 22, nameY[i] + 4, family[f] ) )
    }
}

function draw(    p )
{
    put( "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 1280 1200\" font-family=\"sans-serif\" font-size=\"11\">" )
    put( "<style>line.grid{stroke:#ddd} line.linear{stroke:#999;stroke-dasharray:3 3} polyline{fill:none;stroke-width:1.5}" )
    put( ".title{font-size:14px;font-weight:bold} .y{text-anchor:end} .x{text-anchor:middle}</style>" )
    put( "<rect width=\"1280\" height=\"1200\" fill=\"white\"/>" )
    for ( p = 1; p <= phases; ++p ) panel( p )
    left = 710; top = 900
    line( left, top, left + 50, top, "linear" )
    text( left + 60, top + 4, "key", "n times as much for n times as long (slope 1)" )
    text( left, top + 30, "key", "Each line is a family of messages in which one thing stands n times." )
    text( left, top + 50, "key", "Across: n. Upwards: what the phase costs in all." )
    put( "</svg>" )
    close( svg )
}
