#pragma once
// Where a page's print stands and how large it is: a photo's wall and the paper around a table
// share the pixel budget with the print, and only the print gains from being enlarged.
#include "ocr/PageImage.h"

namespace tarvanel::PrintArea {

struct Print {
    // The part of the page that holds print, with a margin; the page as it is when its print
    // fills most of it or no character was found.
    PageImage::PixPtr page;
    // The typical height of a character in pixels, from the page's dark blobs; 0 for an empty
    // page.
    int character = 0;
};
Print find(PageImage::PixPtr page);

} // namespace tarvanel::PrintArea
