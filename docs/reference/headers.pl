#!/usr/bin/perl
# Turns the public headers into input for Doxygen: a group for each header, and a comment for each function, including
# those that macros declare. Each comment also says who owns what and gives the units of numbers, as derived from the
# types and names.
# usage: headers.pl SOURCE INTO
use strict;
use warnings;

my ( $source, $into ) = @ARGV;

my @families = (
    [ 'messages', 'Messages',  'The module, whole messages, streams, and headers as raw text.' ],
    [ 'headers',  'Headers',   'The typed headers. What all of them have in common is in @ref telsx_header.' ],
    [ 'values',   'Values',    'What the lists in headers consist of, and addresses in parts. What all have in common is in @ref telsx_object.' ],
    [ 'elements', 'Elements',  'The elements of the grammar: whether a text is one, and where it ends.' ],
    [ 'rt',       'Runtime',   'Objects, strings, containers, buffers, times.' ],
    [ 'net',      'Network',   'IP addresses and domain names.' ],
    [ 'rsc',      'Resources', 'IRIs and URIs.' ],
);

# The sections of a page, in order. The functions of every type come from the macros.
my @sections = (
    [ '', '' ],
    [ 'TELSX_HEADER',   'The functions of every typed header' ],
    [ 'TELSX_OBJECT',   'The functions of every type' ],
    [ 'RT_OBJECT_TYPE', 'The functions of every type' ],
    [ 'internal',       'For the libraries themselves' ],
);

my ( @units, %macros, %title, %known, %comment );

# The text of a file.
sub slurp
{
    my ($path) = @_;
    open my $in, '<', $path or die "$path: $!\n";
    local $/;
    return scalar <$in>;
}

sub spew
{
    my ( $name, $text ) = @_;
    open my $out, '>', "$into/$name" or die "$name: $!\n";
    print $out $text;
    close $out or die "$name: $!\n";
}

# What a macro's comment says about the function with this suffix. A row may name a part of the suffix by the macro's
# parameter, such as Del<WORD>At; in its text <word> and <words> are that argument in words.
sub row
{
    my ( $macro, $value, $suffix ) = @_;
    for my $key ( keys %{ $macro->{rows} } )
    {
        ( my $name = $key ) =~ s/<([A-Z_]+)>/$value->{$1}/g;
        next if $name ne $suffix;
        my $text = $macro->{rows}{$key};
        my $words = lc join ' ', ( $value->{WORD} // '' ) =~ /[A-Z][a-z0-9]*/g;
        $text =~ s/texts \(<words>\)/${words}s/g;
        $text =~ s/<word>/$words/g;
        $text =~ s/<([A-Z_]+)>/$value->{$1}/g;
        return $text;
    }
    return;
}

# What a macro declares: a section, the declaration and what the macro's comment says about it.
sub expanded
{
    my ( $call, $comment ) = @_;
    my ( $name, @arguments ) = $call =~ /(\w+)/g;
    my $macro = $macros{$name};
    my %value;
    @value{ @{ $macro->{parameters} } } = @arguments;
    my $body = $macro->{body};
    $body =~ s/##/\0/g;
    $body =~ s/\b(\w+)\b/exists $value{$1} ? $value{$1} : $1/ge;
    $body =~ s/\0//g;
    my ($prefix) = grep { /^[a-z]+[A-Z]/ } @arguments, "telsx$arguments[0]";
    my @items;
    for ( $body =~ /([A-Z_]+\( [^;]*? \)(?= [A-Za-z]|$)|\S[^;]*;)/g )
    {
        if (/^[A-Z_]+\(/) { push @items, expanded( $_, $comment ); next; }
        my ($suffix) = /\b(?:$prefix|telsx___$arguments[0])(\w*)\(/;
        my $section = /___/ ? 'internal' : ( grep { $_->[0] eq $name } @sections ) ? $name : '';
        my $text = $suffix && %{ $macro->{rows} } ? row( $macro, \%value, $suffix ) || die "$call: nothing tells of $suffix\n" : $macro->{comment};
        push @items, /^typedef/ ? [ '', $_, $comment || 'The handle of an object of the type.' ] : [ $section, $_, $text ];
    }
    return @items;
}

# Notes a macro that declares functions, with the rows of its comment, which are such as "  Obj, From   any text".
sub learn
{
    my ( $code, $comment ) = @_;
    my ( $name, $parameters, $body ) = $code =~ /^#define (\w+)\( (.*?) \)(.*)/s;
    $body =~ s/\\\n|\bAPI |RT_API (?=[\w ]*\**\w+\()/ /g;
    $body =~ s/\s+/ /g;
    $body =~ s/^ | $//g;
    my %rows;
    while ( $comment =~ /^   ?([\w<>]+(?:, [\w<>]+)*)   *(\S.*(?:\n {6,}.*)*)/mg )
    {
        my ( $names, $text ) = ( $1, ucfirst $2 );
        $text =~ s/\s+/ /g;
        $rows{$_} = "$text." for split /, /, $names;
    }
    $macros{$name} = { parameters => [ split /, /, $parameters ], body => $body, comment => $comment, rows => \%rows };
}

# Reads a header into its items: a section, code and a comment. A comment holds for all up to an empty line.
sub read_header
{
    my ($unit) = @_;
    my ( $comment, $used, $about, @items ) = ( '', 0 );
    my @lines = split /\n/, slurp( glob "$source/*/$unit.h" );
    while ( defined( my $line = shift @lines ) )
    {
        if ( $line =~ m{^/\*} )
        {
            $line .= "\n" . shift @lines until $line =~ m{\*/$};
            $line =~ s{^/\* |\s*\*/$}{}g;
            $line =~ s/^ \* ?//mg;
            ( $comment, $used ) = defined $about ? ( $line, 0 ) : ( '', 0 );
            $about //= $line;
            next;
        }
        $line .= "\n" . shift @lines while $line =~ /\\$/;
        next if $line =~ /^#(?!define)|^#define (\w+_H|RT_(API|BEGIN|END|NORETURN|THREAD_LOCAL))\b|^RT_(BEGIN|END)$/;
        $comment = '' if $line eq '' and $used;
        next if $line eq '';
        $used = 1;
        $line .= shift(@lines) =~ s/^ +/ /r while @lines and $line =~ /^[A-Z_]+\([^)]*$/;
        if ( $line =~ /^([A-Z_]+)\( .* \)$/ ) { push @items, expanded( $line, $comment ); next; }
        my $end = $line =~ /^#/ ? qr/$/ : $line =~ /^(typedef )?struct \w+$/ ? qr/^\}.*;$/m : qr/;$/;
        $line .= "\n" . ( shift @lines // die "$unit: no end of $line\n" ) until $line =~ $end;
        $line =~ s/\b(RT_API|RT_NORETURN|RT_THREAD_LOCAL) //g;
        learn( $line, $comment ) if $line =~ /^#define \w+_(TYPE|OBJECT|HEADER|FUNC|SET|LIST|VALUES)\(/;
        push @items, [ $line =~ /___/ ? 'internal' : '', $line, $comment ];
    }
    return unless @items;
    ( $title{$unit} ) = $about =~ /^(.*?)\s*[:.(]/s;
    my $family =
          $unit =~ /^(rt|net|rsc)_/                          ? $1
        : $unit =~ /^telsx_header/                           ? 'headers'
        : $unit =~ /^telsx_(message|module|version|object)/  ? 'messages'
        : grep( { $_->[0] eq 'TELSX_OBJECT' } @items )       ? 'values'
        :                                                      'elements';
    push @units, { name => $unit, family => $family, about => $about, items => \@items };
    for (@items)
    {
        next unless $_->[1] =~ /^#define (\w+)|(\w+)\(|extern .*?(\w+);/;
        my $name = $1 // $2 // $3;
        $known{$name} = 1;
        $comment{$name} = $_->[2];
    }
}

# A comment as Doxygen wants it: indented lines stay as they are, and names become links.
sub formatted
{
    my ( $text, $own ) = @_;
    my ( $result, $verbatim ) = ( '', 0 );
    for ( split /\n/, $text )
    {
        my $indented = /^  / || ( $verbatim && $_ eq '' );
        $result .= $indented ? "\n\@verbatim\n" : "\@endverbatim\n" if $indented != $verbatim;
        $verbatim = $indented;
        if ( !$indented )
        {
            s/([\\\@&\$#<>"%*])/\\$1/g;
            s{(?:\w+/)?\b(\w+)\.h\b}{$title{$1} && $1 ne $own ? "\@ref $1" : "$1.h"}ge;
            s/(?<!ref )\b(\w+)\b/$known{$1} ? "#$1" : $1/ge;
        }
        $result .= "$_\n";
    }
    $result .= "\@endverbatim\n" if $verbatim;
    return $result =~ s/\n+(?=\n\n|\n\@endverbatim)//gr;
}

# Who owns what, and the units, derived from the types and names of a declaration.
my $handle = qr/(?:RT_(?:STRING|BUFFER|VECTOR|DICT|STORE|TIME|OBJ)|NET_ADDRESS|TELSX_\w+)/;
my $seconds = qr/(?:expires|deltaSeconds|duration|retryAfter)$/i;

sub argument
{
    my ( $type, $word, $function, $before ) = @_;
    my $bytes = $function =~ /Buffer|StreamDecoder|Utf8/;
    for ( "$type $word" )
    {
        return 'the address of a handle that the caller owns, and owns afterwards' if /^$handle \* /;
        return 'the reference that the caller gives up' if $function =~ /(Release|FreeFunc)$/;
        return "stays the caller's" if /^$handle / and $function !~ /(Obj|From|Retain|TryRestore)$/;
        return 'code points' if /^const RT_CHAR \*/;
        return 'wide characters, each one code point' if /^const wchar_t \*/;
        return $bytes ? 'bytes' : '8-bit characters, each one code point' if /^const char \*/;
        return 'bytes' if /^const (void|unsigned char) \*/;
        return 'their number, or -1 for up to the zero' if / length$/ and $before =~ /^const (char|wchar_t) \*/ and !$bytes;
        return $bytes ? 'a number of bytes' : 'a number of code points' if /^int64_t (length|offset)$/;
        return 'thousandths, from 0 to 1000' if / qvalue$/;
        return 'seconds' if /^int64_t $seconds/;
    }
    return '';
}

sub result
{
    my ( $type, $function ) = @_;
    return 'borrowed: no new reference'
        if $type =~ /\*$/ or $type eq 'RT_SORT' or $function =~ /(?<!Restore)(Obj|From|Borrowed|telsxModule)$/ and $type =~ /^$handle$/ and $function !~ /CreateFrom$/;
    return 'a new reference, which the caller releases' . ( $function =~ /Try/ ? ', or null' : '' )
        if $type =~ /^$handle$/ or $type =~ /^struct RT_VECTOR_/;
    return '' if $type ne 'int64_t';
    return 'a number of code points, 0 for no match' if $function =~ /Skip/;
    return 'negative, 0 or positive' if $function =~ /Compare(Func)?$/;
    return 'a number of bytes' if $function =~ /^(rtBuffer|telsxMessageStream).*(Length|Space)$/;
    return $function =~ /^rtString|Utf8/ ? 'a number of code points' : 'a number of elements' if $function =~ /Length$/;
    return 'thousandths, or -1' if $function =~ /Qvalue$/;
    return 'seconds, or -1' if $function =~ $seconds;
    return '';
}

sub contract
{
    my ($code) = @_;
    my ( $type, $function, $arguments ) = $code =~ /^(\w[\w ]*? \**)(\w+)\((.*)\);$/s or return '';
    $type =~ s/ $//;
    my ( $lines, $before ) = ( '', '' );
    for ( split /,/, $arguments )
    {
        s/^\s+|\s+$//g;
        my ( $of, $word ) = /^(.* \**)(\w+)$/ or next;
        $of =~ s/ $//;
        my $says = argument( $of, $word, $function, $before );
        $lines .= "\@param $word $says\n" if $says;
        $before = $of;
    }
    my $gives = result( $type, $function );
    return $lines . ( $gives ? "\@return $gives\n" : '' );
}

sub documented
{
    my ( $unit, $item ) = @_;
    my ( undef, $code, $text ) = @$item;
    # A message does what its fragment does.
    if ( $text =~ /^(?:Reading|Changing|New messages)\b/ and $code =~ /\btelsxMessage(\w+)\(/ )
    {
        $text = $comment{"telsxMessageFragment$1"};
    }
    return "$code\n" unless $text;
    # The functions of a field share a comment, which tells of the field. This is what each of them does with it.
    my %does = ( Has => 'Whether the %s is present.', Set => 'Sets the %s.', Del => 'Removes the %s.' );
    if ( $code =~ /\btelsx(\w+?)(Has|Set|Del)([A-Z]\w*?)(?:Cstr|Wcstr)?\(/ and $known{"telsx$1$3"} and $3 !~ /At$/ )
    {
        my ( $verb, $word ) = ( $2, $3 );
        my $field = lc join ' ', $word =~ /[A-Z][a-z0-9]*/g;
        $text = sprintf( $does{$verb}, $field =~ s/\biri\b/IRI/r ) . " $text";
    }
    $code =~ s{/\* (.*?) \*/}{/**< $1 */}g;
    return "/** " . formatted( $text, $unit ) . contract($code) . "*/\n$code\n";
}

sub write_unit
{
    my ($unit) = @_;
    my $name = $unit->{name};
    my $page = "/** \@defgroup $name $title{$name}\n\@ingroup $unit->{family}\n" . formatted( $unit->{about}, $name )
        . "\n`#include <" . ( $name =~ /^([a-z]+)/ )[0] . "/$name.h>`\n\@{ */\n";
    for (@sections)
    {
        my ( $section, $heading ) = @$_;
        my @items = grep { $_->[0] eq $section } @{ $unit->{items} } or next;
        $page .= "/** \@name $heading */ /** \@{ */\n" if $heading;
        $page .= documented( $name, $_ ) for @items;
        $page .= "/** \@} */\n" if $heading;
    }
    spew( "$name.h", "$page/** \@} */\n" );
}

# The one C++ header, which has line comments.
sub write_cpp
{
    my ( $page, $text, $group ) = ( '', '', '' );
    for ( split /^/, slurp("$source/telsx/telsx.hpp") )
    {
        if (m{^( *)// ?(.*\n)}) { $text .= $2; $group = $1 ? '' : "\@ingroup telsx_cpp\n"; next; }
        next if /^#/;
        if ( $text and $page eq '' )
        {
            $page = "/** \@defgroup telsx_cpp C++\n" . formatted( $text, '' ) . "\n`#include <telsx/telsx.hpp>` */\n";
            $text = '';
        }
        $page .= "/** $group" . formatted( $text, '' ) . "*/\n" if $text;
        $page .= $_;
        $text = '';
    }
    spew( 'telsx.hpp', $page );
}

read_header($_) for map { m{/(\w+)\.h$} } map { glob "$source/$_" } 'rt/rt_object.h', 'telsx/telsx_object.h', 'telsx/telsx_header.h';
my %read = map { $_->{name} => 1 } @units;
read_header($_) for grep { !$read{$_} } map { m{/(\w+)\.h$} } sort glob "$source/*/*.h";
write_unit($_) for @units;
write_cpp();
spew( 'families.dox', join '', map { "/** \@defgroup $_->[0] $_->[1]\n$_->[2] */\n" } @families );
