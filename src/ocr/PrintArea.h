#pragma once
// Where a page's print stands and how large it is: a photo's wall and the paper around a table
// share the pixel budget with the print, and only the print gains from being enlarged.
#include "ocr/PageImage.h"

namespace tarvanel::PrintArea {

// The typical height of a character in pixels, from the page's dark blobs; 0 for an empty page.
int characterHeight(Pix* page);
// The part of `page` that holds print, with a margin; the page as it is when its print fills
// most of it or `character` is unknown (0).
PageImage::PixPtr printOnly(PageImage::PixPtr page, int character);

} // namespace tarvanel::PrintArea
