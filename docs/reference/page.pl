#!/usr/bin/perl
# Turns a document of docs/ into a page of the reference: the page and its recipes become link targets, and code in its
# tables is written so that Doxygen leaves it alone. The page of the program telsx is not part of the reference.
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
    s/\[([^\]]*)\]\(telsx\.md\)/$1/g;
    s/`([^`]*)`/code($1)/ge if /^\|/;
    print;
}
