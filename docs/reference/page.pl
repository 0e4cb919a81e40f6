#!/usr/bin/perl
# Makes of a document of docs/ a page of the reference: it and its recipes become targets of links, and code in its
# tables is written so that Doxygen leaves it alone.
# usage: page.pl NAME <DOCUMENT
use strict;
use warnings;

my ($name) = @ARGV;

sub code
{
    my ($text) = @_;
    $text =~ s/([\\\@&\$#<>%"*_])/\\$1/g;
    $text =~ s/--/\\--/g;
    $text =~ s/  / &nbsp;/g;
    return "<code>$text</code>";
}

while (<STDIN>)
{
    s/$/ {#$name}/ if $. == 1;
    s/^## (\d+)\..*/$& {#job$1}/;
    s/\((?:cookbook\.md)?#(\d+)-[^)]*\)/(\@ref job$1)/;
    s/`([^`]*)`/code($1)/ge if /^\|/;
    print;
}
