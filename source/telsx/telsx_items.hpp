// The lines of a raw header as one list of items.
#pragma once

#include "telsx/telsx_header.hpp"

namespace telsx
{

// Reads the items of all lines in order; a line has any number of them, with separators between. An empty line has no
// items and is not an error.
//
//     ItemReader items( lines, telsx___SkipMethod, telsx___SkipComma );
//     while ( items.next() )
//         use( items.takeItem() );
template <class SKIP>
class ItemReader
{
public:
    ItemReader( HeaderLines &listLines, SKIP itemSkipper, Skipper separatorSkipper )
        : lines( listLines ), skipItem( itemSkipper ), skipSeparator( separatorSkipper )
    {
        lines.restart();
    }

    // Whether there is another item. False at the end and at bad text; failed() tells which.
    bool next()
    {
        if ( rest )
            bad = !rest.take( skipSeparator );
        else
            while ( !rest )
            {
                line = lines.next();
                if ( !line )
                    return false;
                rest = textOf( line );
            }
        if ( bad )
            return false;
        text = rest.take( skipItem( rest.chs, rest.length ) );
        bad = !text;
        return !bad;
    }
    bool failed() const { return bad; }

    // Takes the item's text, once; it shares the line's text where that saves a copy.
    Ref<RT_STRING> takeItem()
    {
        Text all = textOf( line );
        return text.length == all.length
                   ? lines.takeText( line )
                   : adopt( rtStringCreateFromInner( line, text.chs - all.chs, text.length ) );
    }

private:
    HeaderLines &lines;
    SKIP skipItem;
    Skipper skipSeparator;
    RT_STRING line = nullptr;
    Text text; // the item
    Text rest; // of the line
    bool bad = false;
};

// A raw header with the items on one line, the separator between them; no line if there are no items.
TELSX_MESSAGE_HEADER createHeaderOfItems( RT_STRING name, const Ref<RT_VECTOR> &items, RT_CHAR separator );

} // namespace telsx
