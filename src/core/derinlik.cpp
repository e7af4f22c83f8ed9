#include "core/derinlik.h"

#include <algorithm>

namespace belvani {
namespace {

// Where the markup that begins with "<" at `bas` ends: behind its last character.
std::size_t ImSonu(std::string_view xml, std::size_t bas) {
  const auto sonra = [&](std::string_view son) {
    const auto yer = xml.find(son, bas);
    return yer == std::string_view::npos ? xml.size() : yer + son.size();
  };
  const std::string_view kalan = xml.substr(bas);
  if (kalan.starts_with("<!--")) return sonra("-->");
  if (kalan.starts_with("<![CDATA[")) return sonra("]]>");
  if (kalan.starts_with("<?")) return sonra("?>");
  char tirnak = 0;  // ">" within the value of an attribute ends nothing
  for (std::size_t i = bas; i < xml.size(); ++i) {
    if (tirnak != 0)
      tirnak = xml[i] == tirnak ? 0 : tirnak;
    else if (xml[i] == '"' || xml[i] == '\'')
      tirnak = xml[i];
    else if (xml[i] == '>')
      return i + 1;
  }
  return xml.size();
}

}  // namespace

int JsonDerinligi(std::string_view json) {
  int derinlik = 0, enCok = 0;
  bool metinde = false;
  for (std::size_t i = 0; i < json.size(); ++i) {
    const char c = json[i];
    if (metinde) {
      if (c == '\\') ++i;
      metinde = c != '"';
    } else if (c == '"') {
      metinde = true;
    } else if (c == '[' || c == '{') {
      enCok = std::max(enCok, ++derinlik);
    } else if (c == ']' || c == '}') {
      --derinlik;
    }
  }
  return enCok;
}

XmlOlcusu XmlOlc(std::string_view xml) {
  XmlOlcusu olcu;
  int derinlik = 0;
  std::size_t bas = 0;
  while ((bas = xml.find('<', bas)) != std::string_view::npos) {
    const std::size_t son = ImSonu(xml, bas);
    const std::string_view im = xml.substr(bas, son - bas);
    olcu.dugum += 2 + std::size_t(std::count(im.begin(), im.end(), '='));  // itself, the text behind it, attributes
    bas = son;
    if (im.starts_with("</"))
      --derinlik;
    else if (!im.starts_with("<!") && !im.starts_with("<?") && !im.ends_with("/>"))
      olcu.derinlik = std::max(olcu.derinlik, ++derinlik);
  }
  return olcu;
}

}  // namespace belvani
