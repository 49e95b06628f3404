// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Code.h
// -----------------------------------------------------------------------------
//
// `CZEL_Code` is a two-way template for short coded strings made of named
// fields. A template puts field names between angle brackets and literal
// text between the fields. Once it is parsed, the object builds the coded
// string from field values (`SetField`, then `GetString`), or takes a coded
// string apart into its field values (`Set`, then `GetField`).
//
//   CZEL_Code code;
//   code.Format("id=<id>;name=<name>;");     // 0: fields id and name
//   code.SetField("id", "7").SetField("name", "x");
//   CZEL_String text = code.GetString();     // "id=7;name=x" (last ';' dropped)
//   code.Set("junk id=12;name=bob");
//   CZEL_String id = code.GetField("id");    // "12"
//   CZEL_String name = code.GetField("name"); // "bob"
//
// Templates
//
// A template is a strict shape, not a text to substitute into: an optional
// literal, then field, literal, field and so on. Two fields may not follow
// each other, a field name may not be empty or repeat an earlier one, and a
// '<' inside a field name is part of the name while a '>' outside a field is
// an ordinary character ("a>b<c>" has the literal "a>b" and the field c).
// Whatever follows the last complete field is not kept: a trailing literal
// ("<a>tail") and an unterminated field ("<a>b<c") are dropped without error.
// A template without a complete field leaves the object empty.
//
// Taking apart
//
// `Set` looks for each literal in turn, with exact case, from where the last
// one ended; the field before a literal takes the text up to it, so a value
// can't contain the literal that follows it. The last field takes all the
// rest. Text before the first literal is skipped when no field comes first,
// and a literal that isn't there ends the work, leaving the later fields
// with their earlier values.
//
// Field names are compared as strings are, case-sensitively. Nothing here
// throws a `CZEL_Exception`: `Format` returns a code, and everything else
// has a quiet result. Copies are independent: each holds nodes of its own.
// A move or a `Swap` hands the nodes over in constant time, without copying.

#ifndef LZEL_CORE_TEXT_CZEL_CODE_H_
#define LZEL_CORE_TEXT_CZEL_CODE_H_

#include <LZEL_Core/containers/CZEL_List.h>
#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/containers/CZEL_Vector.h>
#include <LZEL_Core/containers/CZEL_VectorListOps.h>
#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

class ZEL_API CZEL_Code : public CZEL_Object {
 public:
  // The kinds of template node, the values of `CFormatNode::m_Type`.
  enum t_NodeType : ZEL::u32 {
    NODE_FIELD = 0,    // A field; `m_Data` points to its index, a `ZEL::u32`.
    NODE_LITERAL = 1,  // Literal text; `m_Data` points to a `CZEL_String`.
  };

  // One element of a parsed template: a plain record of two words. Its
  // assignment copies both, so that a copied node refers to the same data;
  // the `CZEL_Code` that holds a node owns that data and releases it.
  class ZEL_API CFormatNode {
   public:
    // A field node with no data.
    CFormatNode();

    // Both copy the type and the data pointer.
    CFormatNode(CFormatNode const& other);
    CFormatNode& operator=(CFormatNode const& other);

    // Both always 0, whatever the operands: nodes are not searched for, and
    // the containers merely require the operators.
    ZEL::u8 operator==(CFormatNode const& other) const;
    ZEL::u8 operator!=(CFormatNode const& other) const;

    // `NODE_FIELD` or `NODE_LITERAL`.
    ZEL::u32 m_Type;
    // The field's index cell or the literal's string, by `m_Type`.
    void* m_Data;
  };

  // A list of template nodes.
  class ZEL_API CFormatList : public CZEL_List<CFormatNode> {
   public:
    // An empty list; a copy of `src`'s nodes; `src`'s nodes taken over, as
    // the list's own move does. Assignment copies.
    CFormatList();
    CFormatList(CFormatList const& src);
    CFormatList(CFormatList&& src) noexcept;
    ~CFormatList() override;
    CFormatList& operator=(CFormatList const& src);
  };

  // A vector of template nodes.
  class ZEL_API CFormatVector : public CZEL_Vector<CFormatNode> {
   public:
    // An empty vector; a copy of `src`'s nodes; `src`'s nodes taken over, as
    // the vector's own move does. Assignment copies.
    CFormatVector();
    CFormatVector(CFormatVector const& src);
    CFormatVector(CFormatVector&& src) noexcept;
    ~CFormatVector() override;
    CFormatVector& operator=(CFormatVector const& src);
    // The list's nodes in order; the list's cursor ends on its tail.
    CFormatVector& operator=(CFormatList& src);
  };

  // ---------------------------------------------------------------------------
  // Construction
  // ---------------------------------------------------------------------------

  // An object with no template.
  CZEL_Code();

  // `Format(format)`, its code ignored: after a bad template the object is
  // empty.
  CZEL_Code(CZEL_String const& format);

  // A copy with a template, names and values of its own.
  CZEL_Code(CZEL_Code const& other);

  // Takes over the template, names and values of `other` in constant time,
  // without allocating; `other` is left empty.
  CZEL_Code(CZEL_Code&& other) noexcept;

  // Releases the template.
  ~CZEL_Code() override;

  // Becomes a copy of `other`, releasing its own template first. Assigning
  // an object to itself changes nothing.
  CZEL_Code& operator=(CZEL_Code const& other);

  // Releases its own template and takes over that of `other`, which is left
  // empty. Moving an object onto itself changes nothing.
  CZEL_Code& operator=(CZEL_Code&& other) noexcept;

  // Exchanges templates, names and values with `other` in constant time.
  void Swap(CZEL_Code& other) noexcept;

  // ---------------------------------------------------------------------------
  // Template
  // ---------------------------------------------------------------------------

  // Parses `format` as the new template, discarding the old one and all
  // values; every field starts with an empty value. Returns 0, also for a
  // template with no complete field, which leaves the object empty. Returns
  // ZEL_ERR_BAD_FORMAT, the object left empty, for an empty field name
  // ("<>"), a repeated one ("<a>x<a>") or a field right after a field
  // ("<a><b>").
  ZEL::u32 Format(CZEL_String const& format);

  // ---------------------------------------------------------------------------
  // Fields
  // ---------------------------------------------------------------------------

  // Sets the value of the field `name`. An unknown name changes nothing.
  CZEL_Code& SetField(CZEL_String const& name, CZEL_String const& value);

  // The value of the field `name`, or the seven characters "(*this)" if
  // there is no such field.
  CZEL_String GetField(CZEL_String const& name) const;

  // For each field of `other` that this template has too, takes `other`'s
  // value. The other fields stay; the templates may differ.
  CZEL_Code& Set(CZEL_Code& other);

  // ---------------------------------------------------------------------------
  // Coded strings
  // ---------------------------------------------------------------------------

  // Takes `coded` apart into the field values, as told at the top of this
  // file: on template "<a>-<b>", "1-2-3" gives a "1" and b "2-3". A literal
  // that isn't found stops the work quietly. The last field keeps its value
  // when no text is left for it, while a field before a literal becomes
  // empty. An empty object ignores `coded`.
  CZEL_Code& Set(CZEL_String const& coded);

  // The template's literals and the fields' values in order; empty for an
  // object with no template.
  CZEL_String GetString() const;

 protected:
  // Makes this object a copy of `other` with nodes of its own: the template,
  // then the names, then the values. Survives `other` being this object.
  void DataCopy(CZEL_Code const& other);

 private:
  // Releases the data of every node and empties the template, the names and
  // the values.
  void ClearFormat();

  // The position of the field `name` in `m_Names`; 0 if there is none.
  ZEL::u8 FindField(CZEL_String const& name, ZEL::u32* pos) const;

  // The field names, in the order of their first appearance.
  CZEL_StringVector m_Names;
  // The value of each field, at the index of its name.
  CZEL_StringVector m_Values;
  // The parsed template, in order.
  CFormatVector m_Nodes;
};

// `a.Swap(b)`, found by argument-dependent lookup, for `std::sort` and
// `using std::swap; swap(a, b)`.
inline void swap(CZEL_Code& a, CZEL_Code& b) noexcept { a.Swap(b); }

// The containers of nodes are compiled once, in the library, with the other
// container instances.
ZEL_EXTERN_TEMPLATE(class CZEL_Vector<CZEL_Code::CFormatNode>)
ZEL_EXTERN_TEMPLATE(class CZEL_List<CZEL_Code::CFormatNode>)

#endif  // LZEL_CORE_TEXT_CZEL_CODE_H_
