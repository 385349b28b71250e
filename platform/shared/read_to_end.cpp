#include "platform/shared/read_to_end.h"

#include "platform/error.h"

namespace zelvane::platform {

std::string readToEnd(ReadStream& stream, std::uint64_t limit) {
  constexpr std::size_t kChunk = std::size_t{64} * 1024;
  std::string content;
  for (;;) {
    std::string piece = stream.read(kChunk);
    if (piece.empty()) return content;
    // Counted while reading, because a file may grow after anyone asked for its size.
    if (piece.size() > limit - content.size()) throw Error(ErrorNumber::accessError);
    content += piece;
  }
}

}  // namespace zelvane::platform
