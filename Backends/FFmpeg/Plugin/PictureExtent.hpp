// How long the pictures of a file last.
#pragma once

namespace proupsells::ffmpegbackend {

class PictureStream;

struct PictureExtent {
    double duration_s = 0;   // up to the end of the last picture; 0 when no picture can be decoded
    bool isCutShort = false; // the pictures end before the file says they do
};

// Reads all packets but decodes nothing as long as none is missing: then the file's own duration is right. When some are missing,
// decodes what follows the last key picture that can be decoded. Call seek() before reading on.
PictureExtent extentOf(PictureStream& stream);

} // namespace proupsells::ffmpegbackend
