#include "documents/Xml.h"

#include "render/Decimal.h"

namespace linewright {

namespace {

struct StringWriter : pugi::xml_writer {
    void write(const void* bytes, std::size_t count) override {
        text.append(static_cast<const char*>(bytes), count);
    }
    std::string text;
};

}  // namespace

pugi::xml_node AddElement(pugi::xml_node parent, const char* name,
                          std::initializer_list<XmlAttribute> attributes) {
    pugi::xml_node element = parent.append_child(name);
    for (const XmlAttribute& attribute : attributes) {
        element.append_attribute(attribute.name).set_value(attribute.value.c_str());
    }
    return element;
}

pugi::xml_node AddText(pugi::xml_node parent, const char* name, const std::string& text) {
    pugi::xml_node element = parent.append_child(name);
    element.append_child(pugi::node_pcdata).set_value(text.c_str());
    return element;
}

std::string XmlOf(const pugi::xml_document& document) {
    StringWriter writer;
    document.save(writer, "", pugi::format_raw, pugi::encoding_utf8);
    return std::move(writer.text);
}

void Declare(pugi::xml_document& document) {
    pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    declaration.append_attribute("version").set_value("1.0");
    declaration.append_attribute("encoding").set_value("UTF-8");
    declaration.append_attribute("standalone").set_value("yes");
}

std::string Number(double points) {
    constexpr int kDigits = 4;
    return Decimal(points, kDigits);
}

}  // namespace linewright
