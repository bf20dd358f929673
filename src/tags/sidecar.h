// The text beside a media file that has no tag of its own: one element on each of 13 lines.
#ifndef SONOTIK_TAGS_SIDECAR_H_
#define SONOTIK_TAGS_SIDECAR_H_

#include <string>

#include "tags/tag_fields.h"

namespace sonotik {

// Sets the fields line by line. An element's wrapping goes by its length; its name isn't looked at.
// Original artist, copyright, URL and encoder keep what they hold. Throws RuntimeFailure for a text
// of fewer lines, before any field is set, and for a line shorter than its wrapping, when the
// fields of the lines before are.
void ReadSidecarText(std::string text, TagFields& fields);

}  // namespace sonotik

#endif  // SONOTIK_TAGS_SIDECAR_H_
