#pragma once

#include <initializer_list>
#include <pugixml.hpp>
#include <string>

namespace linewright {

/** An attribute of an element of XML; UTF-8. */
struct XmlAttribute {
    const char* name;
    std::string value;
};

/** Appends an element with attributes. */
pugi::xml_node AddElement(pugi::xml_node parent, const char* name,
                          std::initializer_list<XmlAttribute> attributes = {});

/** Appends an element that holds a text, spaces and all. */
pugi::xml_node AddText(pugi::xml_node parent, const char* name, const std::string& text);

/** A file of XML, in UTF-8 and without a character that is not said. */
std::string XmlOf(const pugi::xml_document& document);

/** A document without content but its declaration. */
void Declare(pugi::xml_document& document);

/** A length in points as a number. */
std::string Number(double points);

}  // namespace linewright
