// Not built for Windows, see running_text_win.cpp. libxml2's HTML parser accepts any text, so that
// none is refused for its markup.

#include "dictionary/coverage/running_text.h"

#include <libxml/HTMLparser.h>
#include <zlib.h>

#include <algorithm>
#include <array>
#include <climits>
#include <locale>
#include <memory>
#include <vector>

#include "dictionary/console.h"
#include "text/characters.h"
#include "text/utf.h"

namespace dictionary {
namespace {

struct CloseFile {
  void operator()(gzFile file) const { gzclose_r(file); }
};
struct FreeDocument {
  void operator()(xmlDocPtr document) const { xmlFreeDoc(document); }
};

/// zlib hands files that are not packed through unchanged.
std::string readBytes(const std::filesystem::path& path) {
  const std::unique_ptr<gzFile_s, CloseFile> file(gzopen(path.c_str(), "rb"));
  if (!file) throw Failure(displayName(path) + " cannot be read");
  std::string bytes;
  std::vector<char> buffer(std::size_t{1} << 16U);
  for (;;) {
    const int count = gzread(file.get(), buffer.data(), static_cast<unsigned>(buffer.size()));
    if (count < 0) throw Failure(displayName(path) + " cannot be read or unpacked");
    if (count == 0) break;
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
    if (bytes.size() > kMaxTextBytes) throw Failure(displayName(path) + " is too long");
  }
  // A packed file that ends too early is no error of gzread.
  int error = Z_OK;
  gzerror(file.get(), &error);
  if (error != Z_OK) throw Failure(displayName(path) + " cannot be unpacked: it ends too early");
  return bytes;
}

/// Returns the length of the valid UTF-8 sequence that `bytes`, not empty, begins with; 0 for none.
std::size_t sequenceLength(std::string_view bytes) {
  return static_cast<unsigned char>(bytes[0]) < 0x80 ? 1 : text::readSequence(bytes).length;
}

/// Writes each byte that is not part of a valid sequence as the character of Latin-1.
std::string asValidUtf8(std::string_view bytes) {
  std::string valid;
  valid.reserve(bytes.size());
  while (!bytes.empty()) {
    std::size_t length = sequenceLength(bytes);
    if (length == 0) {
      const char16_t unit = static_cast<unsigned char>(bytes[0]);
      valid += text::toUtf8({&unit, 1});
      length = 1;
    } else {
      valid += bytes.substr(0, length);
    }
    bytes.remove_prefix(length);
  }
  return valid;
}

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), text::lowerAscii<char>);
  return lower;
}

/// Returns whether the text begins with a tag, a comment or a declaration, as HTML does, and parts
/// of a page as well; no other running text does.
bool isHtml(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
  if (first == std::string_view::npos || text[first] != '<') return false;
  const std::string_view next = text.substr(first + 1, 1);
  return next == "!" || next == "?" ||
         (!next.empty() && std::isalpha(next[0], std::locale::classic()));
}

template <std::size_t kCount>
bool isOneOf(const xmlNode& node, const std::array<std::string_view, kCount>& names) {
  const std::string name = lowerCase(reinterpret_cast<const char*>(node.name));
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool isLeftOut(const xmlNode& node) {
  constexpr auto kNames = std::to_array<std::string_view>(
      {"script", "style", "pre", "code", "tt", "kbd", "samp", "var"});
  return isOneOf(node, kNames);
}

/// Elements within a line, which do not end a word.
bool isInline(const xmlNode& node) {
  constexpr auto kNames = std::to_array<std::string_view>(
      {"a",    "abbr",   "acronym", "b",   "bdi", "bdo",  "big", "cite", "del",
       "dfn",  "em",     "font",    "i",   "ins", "mark", "q",   "s",    "small",
       "span", "strike", "strong",  "sub", "sup", "u",    "wbr"});
  return isOneOf(node, kNames);
}

/// The text of a tree of HTML, in the order of the tree.
class TextOfHtml {
 public:
  explicit TextOfHtml(const xmlNode* root) {
    if (root != nullptr) visit(*root);
  }
  [[nodiscard]] std::string take() { return std::move(text_); }

 private:
  /// Goes through the tree without recursion: its depth is the text's to choose.
  void visit(const xmlNode& root) {
    const xmlNode* node = &root;
    while (node != nullptr) {
      const bool isEntered = enter(*node);
      if (isEntered && node->children != nullptr) {
        node = node->children;
        continue;
      }
      leave(*node);
      while (node != &root && node->next == nullptr) {
        node = node->parent;
        leave(*node);
      }
      node = node == &root ? nullptr : node->next;
    }
  }

  /// Returns whether the node's children are to be visited.
  bool enter(const xmlNode& node) {
    if (node.type == XML_TEXT_NODE) addText(reinterpret_cast<const char*>(node.content));
    if (node.type != XML_ELEMENT_NODE) return false;
    addEdge(node);
    return !isLeftOut(node);
  }
  void leave(const xmlNode& node) {
    if (node.type == XML_ELEMENT_NODE) addEdge(node);
  }

  void addText(std::string_view text) {
    for (const char byte : text) {
      text_ += byte == '\n' || byte == '\r' || byte == '\t' ? ' ' : byte;
    }
  }

  /// What is left out ends a word too, but no paragraph.
  void addEdge(const xmlNode& node) {
    constexpr std::string_view kLineEnd = "br";
    if (lowerCase(reinterpret_cast<const char*>(node.name)) == kLineEnd) {
      text_ += '\n';
    } else if (isLeftOut(node)) {
      text_ += ' ';
    } else if (!isInline(node)) {
      text_ += "\n\n";
    }
  }

  std::string text_;
};

std::string textOfHtml(const std::string& html, const std::filesystem::path& path) {
  static_assert(kMaxTextBytes * 2 <= INT_MAX);  // Latin-1 takes two bytes
  const std::unique_ptr<xmlDoc, FreeDocument> document(
      htmlReadMemory(html.data(), static_cast<int>(html.size()), nullptr, "UTF-8",
                     HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING |
                         HTML_PARSE_NONET | HTML_PARSE_COMPACT));
  if (!document) throw Failure(displayName(path) + " cannot be read as HTML");
  return TextOfHtml(xmlDocGetRootElement(document.get())).take();
}

}  // namespace

std::u16string readRunningText(const std::filesystem::path& path) {
  const std::string text = asValidUtf8(readBytes(path));
  return text::toUtf16(isHtml(text) ? textOfHtml(text, path) : text);
}

}  // namespace dictionary
