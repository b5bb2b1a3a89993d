#include "documents/Xml.h"

#include <new>
#include <utility>

#include "render/Decimal.h"

namespace linewright {

namespace {

struct StringWriter : pugi::xml_writer {
    void write(const void* bytes, std::size_t count) override {
        text.append(static_cast<const char*>(bytes), count);
    }
    std::string text;
};

void Must(bool isDone) {
    if (!isDone) throw std::bad_alloc();
}

}  // namespace

pugi::xml_node AddElement(pugi::xml_node parent, const char* name,
                          std::initializer_list<XmlAttribute> attributes) {
    pugi::xml_node element = parent.append_child(name);
    Must(!element.empty());
    for (const XmlAttribute& attribute : attributes) {
        AddAttribute(element, attribute.name, attribute.value);
    }
    return element;
}

pugi::xml_node AddText(pugi::xml_node parent, const char* name, const std::string& text) {
    pugi::xml_node element = AddElement(parent, name);
    AppendText(element, text);
    return element;
}

void AddAttribute(pugi::xml_node element, const char* name, const std::string& value) {
    Must(element.append_attribute(name).set_value(value.c_str()));
}

void AppendText(pugi::xml_node element, const std::string& text) {
    Must(element.append_child(pugi::node_pcdata).set_value(text.c_str()));
}

void AddInstruction(pugi::xml_node parent, const char* name, const char* value) {
    pugi::xml_node instruction = parent.append_child(pugi::node_pi);
    Must(instruction.set_name(name) && instruction.set_value(value));
}

void AddCopies(pugi::xml_node parent, const pugi::xml_document& part) {
    for (const pugi::xml_node& child : part.children()) {
        Must(!parent.append_copy(child).empty());
    }
}

std::string XmlOf(const pugi::xml_document& document) {
    StringWriter writer;
    document.save(writer, "", pugi::format_raw, pugi::encoding_utf8);
    return std::move(writer.text);
}

void Declare(pugi::xml_document& document) {
    pugi::xml_node declaration = document.append_child(pugi::node_declaration);
    Must(!declaration.empty());
    AddAttribute(declaration, "version", "1.0");
    AddAttribute(declaration, "encoding", "UTF-8");
    AddAttribute(declaration, "standalone", "yes");
}

std::string Number(double points) {
    constexpr int kDigits = 4;
    return Decimal(points, kDigits);
}

}  // namespace linewright
