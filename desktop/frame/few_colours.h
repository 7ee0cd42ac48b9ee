// Pictures of flat grounds with at most 256 colours: a third of the size, the same to the eye.
#pragma once

#include <QImage>

namespace desktop {

// The commonest colours stay exactly what they are; each of the others becomes the nearest of them.
QImage with_few_colours(const QImage& picture);

} // namespace desktop
