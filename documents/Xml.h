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

// The library says nothing when it has no memory: what is not there then is missing from the file.
// These throw std::bad_alloc.

/** Appends an element with attributes. */
pugi::xml_node AddElement(pugi::xml_node parent, const char* name,
                          std::initializer_list<XmlAttribute> attributes = {});

/** Appends an element that holds a text, spaces and all. */
pugi::xml_node AddText(pugi::xml_node parent, const char* name, const std::string& text);

void AddAttribute(pugi::xml_node element, const char* name, const std::string& value);

/** Appends text behind what an element holds. */
void AppendText(pugi::xml_node element, const std::string& text);

/** Appends a processing instruction. */
void AddInstruction(pugi::xml_node parent, const char* name, const char* value);

/** Appends copies of what another document holds. */
void AddCopies(pugi::xml_node parent, const pugi::xml_document& part);

/** A file of XML, in UTF-8 and without a character that is not said. */
std::string XmlOf(const pugi::xml_document& document);

/** A document without content but its declaration. */
void Declare(pugi::xml_document& document);

/** A length in points as a number. */
std::string Number(double points);

}  // namespace linewright
