#include "common/SvgCanvas.h"

#include "common/text/Base64.h"
#include "common/text/Numbers.h"
#include "common/text/Text.h"

namespace morvane::common {
namespace {

constexpr float kSmallText = 12;  // pixels

std::string Hex(platform::Color color) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text = "#";
  for (const unsigned shift : {0U, 8U, 16U}) {
    const unsigned part = color >> shift & 0xFFU;
    text += kDigits[part >> 4U];
    text += kDigits[part & 15U];
  }
  return text;
}

// Characters that mean something in XML, and those that it does not allow.
std::string Escape(std::string_view utf8) {
  std::string out;
  for (const char c : utf8) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    }
  }
  return out;
}

std::string MediaType(std::string_view bytes) {
  if (StartsWith(bytes, "BM")) return "image/bmp";
  if (StartsWith(bytes, "GIF8")) return "image/gif";
  if (StartsWith(bytes, "\xFF\xD8")) return "image/jpeg";
  if (StartsWith(bytes, "\x89PNG")) return "image/png";
  return "application/octet-stream";
}

}  // namespace

SvgCanvas::SvgCanvas(int width, int height, platform::Color background, PictureBytes pictures)
    : width_(width), height_(height), background_(background), pictures_(std::move(pictures)) {}

void SvgCanvas::Clear() {
  body_.clear();
}

void SvgCanvas::SetScale(const platform::CanvasView& view) {
  view_ = view;
  scaleX_ = static_cast<float>(width_) / view.Width;
  scaleY_ = static_cast<float>(height_) / view.Height;
}

void SvgCanvas::Attribute(std::string_view name, float value) {
  body_ += ' ';
  body_ += name;
  body_ += "=\"" + PlainNumber(value) + '"';
}

void SvgCanvas::Stroke(const platform::Pen& pen) {
  body_ += " fill=\"none\" stroke=\"" + Hex(pen.color) + '"';
  Attribute("stroke-width", static_cast<float>(pen.width));
}

void SvgCanvas::Lines(const platform::Pen& pen, const platform::Segment* segments, std::size_t count) {
  if (count == 0) return;
  body_ += "<path d=\"";
  for (std::size_t i = 0; i < count; ++i) {
    const platform::Segment& s = segments[i];
    const bool goesOn = i > 0 && segments[i - 1].x2 == s.x1 && segments[i - 1].y2 == s.y1;
    if (!goesOn) body_ += 'M' + PlainNumber(X(s.x1)) + ' ' + PlainNumber(Y(s.y1));
    body_ += 'L' + PlainNumber(X(s.x2)) + ' ' + PlainNumber(Y(s.y2));
  }
  body_ += '"';
  Stroke(pen);
  body_ += " stroke-linecap=\"round\" stroke-linejoin=\"round\"/>\n";
}

void SvgCanvas::Box(const platform::Rectangle& box, platform::Color color, bool filled) {
  body_ += "<rect";
  Attribute("x", X(box.x));
  Attribute("y", Y(box.y));
  Attribute("width", box.width * scaleX_);
  Attribute("height", box.height * scaleY_);
  if (filled) {
    body_ += " fill=\"" + Hex(color) + '"';
  } else {
    Stroke({color, 1});
  }
  body_ += "/>\n";
}

void SvgCanvas::Circle(float x, float y, float radius, const platform::Pen& pen) {
  body_ += "<circle";
  Attribute("cx", X(x));
  Attribute("cy", Y(y));
  Attribute("r", radius * scaleX_);
  Stroke(pen);
  body_ += "/>\n";
}

void SvgCanvas::Text(float x, float y, const std::string& text, platform::Color color,
                     const platform::TextFace& face) {
  const float size = face.size > 0 ? face.size * scaleY_ : kSmallText;
  body_ += "<text xml:space=\"preserve\" dominant-baseline=\"text-before-edge\"";
  Attribute("x", X(x));
  Attribute("y", Y(y));
  Attribute("font-size", size);
  body_ += " font-family=\"" + Escape(ToUtf8(face.face.empty() ? "sans-serif" : face.face)) + '"';
  if (face.italic) body_ += " font-style=\"italic\"";
  body_ += " fill=\"" + Hex(color) + "\">" + Escape(ToUtf8(text)) + "</text>\n";
}

void SvgCanvas::Image(const std::string& name, const platform::Rectangle& place) {
  const std::string bytes = pictures_(name);
  if (bytes.empty()) return;
  body_ += "<image preserveAspectRatio=\"none\"";
  Attribute("x", X(place.x));
  Attribute("y", Y(place.y));
  Attribute("width", place.width * scaleX_);
  Attribute("height", place.height * scaleY_);
  body_ += " href=\"data:" + MediaType(bytes) + ";base64," + Base64(bytes) + "\"/>\n";
}

std::string SvgCanvas::Document() const {
  const std::string width = PlainNumber(std::int32_t{width_});
  const std::string height = PlainNumber(std::int32_t{height_});
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
         width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + ' ' + height +
         "\">\n<rect width=\"" + width + "\" height=\"" + height + "\" fill=\"" + Hex(background_) +
         "\"/>\n" + body_ + "</svg>\n";
}

}  // namespace morvane::common
