// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/text/CZEL_Code.h>

#include <LZEL_Core/containers/CZEL_StringList.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

#include <utility>

using ZEL::u32;
using ZEL::u8;

namespace {

using CFormatNode = CZEL_Code::CFormatNode;
using CFormatList = CZEL_Code::CFormatList;

// Frees what a node's data pointer owns, by the node's type, and clears the
// pointer. A node without data is left as it is.
void ReleaseData(CFormatNode& node) {
  if (node.m_Type == CZEL_Code::NODE_LITERAL) {
    delete static_cast<CZEL_String*>(node.m_Data);
  } else {
    delete static_cast<u32*>(node.m_Data);
  }
  node.m_Data = nullptr;
}

// A new copy of what a node's data pointer owns; null for a node without
// data.
void* CopyData(CFormatNode const& node) {
  if (node.m_Data == nullptr) return nullptr;
  if (node.m_Type == CZEL_Code::NODE_LITERAL) {
    return new CZEL_String(*static_cast<CZEL_String const*>(node.m_Data));
  }
  return new u32(*static_cast<u32 const*>(node.m_Data));
}

// Appends a node of `type` to `list`. The node is in the list before its
// data is allocated, so that the data is never without an owner.
template <typename Data>
void AppendNode(CFormatList& list, u32 type, Data const& data) {
  CFormatNode* node = list.AppendItem();
  node->m_Type = type;
  node->m_Data = new Data(data);
}

// Releases the data of the nodes of a list under construction when it goes
// out of scope, unless the nodes were handed on (`m_List` cleared).
struct SListRelease {
  CFormatList* m_List;
  ~SListRelease() {
    if (m_List == nullptr) return;
    m_List->ToStart();
    for (u32 i = 0; i < m_List->GetLength(); ++i) ReleaseData(m_List->Next(1));
  }
};

}  // namespace

// -----------------------------------------------------------------------------
// Nodes and their containers
// -----------------------------------------------------------------------------

CZEL_Code::CFormatNode::CFormatNode() : m_Type(NODE_FIELD), m_Data(nullptr) {}

CZEL_Code::CFormatNode::CFormatNode(CFormatNode const& other)
    : m_Type(other.m_Type), m_Data(other.m_Data) {}

CZEL_Code::CFormatNode& CZEL_Code::CFormatNode::operator=(CFormatNode const& other) {
  m_Type = other.m_Type;
  m_Data = other.m_Data;
  return *this;
}

u8 CZEL_Code::CFormatNode::operator==(CFormatNode const&) const { return 0; }

u8 CZEL_Code::CFormatNode::operator!=(CFormatNode const&) const { return 0; }

// Each constructor and assignment passes on to the template's own.
CZEL_Code::CFormatList::CFormatList() : CZEL_List<CFormatNode>() {}
CZEL_Code::CFormatList::CFormatList(CFormatList const& src) : CZEL_List<CFormatNode>(src) {}
CZEL_Code::CFormatList::CFormatList(CFormatList&& src) noexcept
    : CZEL_List<CFormatNode>(std::move(src)) {}
CZEL_Code::CFormatList::~CFormatList() = default;

CZEL_Code::CFormatList& CZEL_Code::CFormatList::operator=(CFormatList const& src) {
  CZEL_List<CFormatNode>::operator=(src);
  return *this;
}

CZEL_Code::CFormatVector::CFormatVector() : CZEL_Vector<CFormatNode>() {}
CZEL_Code::CFormatVector::CFormatVector(CFormatVector const& src) : CZEL_Vector<CFormatNode>(src) {}
CZEL_Code::CFormatVector::CFormatVector(CFormatVector&& src) noexcept
    : CZEL_Vector<CFormatNode>(std::move(src)) {}
CZEL_Code::CFormatVector::~CFormatVector() = default;

CZEL_Code::CFormatVector& CZEL_Code::CFormatVector::operator=(CFormatVector const& src) {
  CZEL_Vector<CFormatNode>::operator=(src);
  return *this;
}

CZEL_Code::CFormatVector& CZEL_Code::CFormatVector::operator=(CFormatList& src) {
  CZEL_Vector<CFormatNode>::operator=(static_cast<CZEL_List<CFormatNode>&>(src));
  return *this;
}

// -----------------------------------------------------------------------------
// Construction
// -----------------------------------------------------------------------------

CZEL_Code::CZEL_Code() = default;

CZEL_Code::CZEL_Code(CZEL_String const& format) { Format(format); }

CZEL_Code::CZEL_Code(CZEL_Code const& other) : CZEL_Object(other) { DataCopy(other); }

CZEL_Code::CZEL_Code(CZEL_Code&& other) noexcept { Swap(other); }

CZEL_Code::~CZEL_Code() { ClearFormat(); }

CZEL_Code& CZEL_Code::operator=(CZEL_Code const& other) {
  DataCopy(other);
  return *this;
}

// The old template goes with the local that takes it over; moved onto
// itself, the object gets its own template back.
CZEL_Code& CZEL_Code::operator=(CZEL_Code&& other) noexcept {
  CZEL_Code taken(std::move(other));
  Swap(taken);
  return *this;
}

void CZEL_Code::Swap(CZEL_Code& other) noexcept {
  m_Names.Swap(other.m_Names);
  m_Values.Swap(other.m_Values);
  m_Nodes.Swap(other.m_Nodes);
}

// Each node gets a copy of its data, so that either object can be formatted
// again or destroyed without the other. The nodes are in place, without
// data, before any copy is made: a failed allocation leaves nothing that
// this object doesn't own.
void CZEL_Code::DataCopy(CZEL_Code const& other) {
  if (&other == this) return;
  ClearFormat();
  u32 const count = other.m_Nodes.GetLength();
  if (count != 0) {
    m_Nodes.Create(count);
    CFormatNode* to = m_Nodes.GetBuf();
    CFormatNode const* from = other.m_Nodes.GetBuf();
    for (u32 i = 0; i < count; ++i) {
      to[i].m_Type = from[i].m_Type;
      to[i].m_Data = CopyData(from[i]);
    }
  }
  m_Names = other.m_Names;
  m_Values = other.m_Values;
}

void CZEL_Code::ClearFormat() {
  CFormatNode* nodes = m_Nodes.GetBuf();
  for (u32 i = 0; i < m_Nodes.GetLength(); ++i) ReleaseData(nodes[i]);
  m_Nodes.DeleteAll();
  m_Names.DeleteAll();
  m_Values.DeleteAll();
}

// -----------------------------------------------------------------------------
// Template
// -----------------------------------------------------------------------------

// A scan with two states, inside a field name or not. The text collected
// since the last bracket that counted is always one run of `format`, from
// `runStart` to the current character. The old template is gone before the
// new one is looked at; the new nodes become the template only if at least
// one field was complete, and whatever follows the last field is dropped.
u32 CZEL_Code::Format(CZEL_String const& format) {
  ClearFormat();
  CFormatList nodes;
  SListRelease release{&nodes};
  CZEL_StringList fields;
  bool inTag = false;
  bool afterField = false;
  u32 index = 0;
  u32 runStart = 0;
  char const* text = format.GetStringC();
  for (u32 i = 0; i < format.GetLength(); ++i) {
    if (inTag && text[i] == '>') {
      CZEL_String const name = format.Mid(runStart, i - runStart);
      fields.ToStart();
      if (name.GetLength() == 0 || fields.FindToEnd(name)) return ZEL_ERR_BAD_FORMAT;
      fields += name;
      AppendNode(nodes, NODE_FIELD, index++);
      runStart = i + 1;
      inTag = false;
      afterField = true;
    } else if (!inTag && text[i] == '<') {
      if (afterField) return ZEL_ERR_BAD_FORMAT;
      if (i > runStart) AppendNode(nodes, NODE_LITERAL, format.Mid(runStart, i - runStart));
      runStart = i + 1;
      inTag = true;
    } else if (!inTag) {
      afterField = false;
    }
  }
  if (fields.GetLength() != 0) {
    m_Names = fields;
    m_Nodes = nodes;
    release.m_List = nullptr;
    m_Values.Create(m_Names.GetLength());
  }
  return ZEL_ERR_NONE;
}

// -----------------------------------------------------------------------------
// Fields
// -----------------------------------------------------------------------------

CZEL_Code& CZEL_Code::SetField(CZEL_String const& name, CZEL_String const& value) {
  u32 pos = 0;
  if (FindField(name, &pos)) m_Values[pos] = value;
  return *this;
}

CZEL_String CZEL_Code::GetField(CZEL_String const& name) const {
  u32 pos = 0;
  if (FindField(name, &pos)) return m_Values[pos];
  return CZEL_String("(*this)");
}

CZEL_Code& CZEL_Code::Set(CZEL_Code& other) {
  for (u32 i = 0; i < other.m_Names.GetLength(); ++i) {
    u32 pos = 0;
    if (FindField(other.m_Names[i], &pos)) m_Values[pos] = other.m_Values[i];
  }
  return *this;
}

u8 CZEL_Code::FindField(CZEL_String const& name, u32* pos) const {
  return m_Names.FindToEnd(name, pos, 0);
}

// -----------------------------------------------------------------------------
// Coded strings
// -----------------------------------------------------------------------------

// Each literal is searched for in what follows the previous one, from
// `offset` on; a field waiting for its end takes the text up to the literal.
// Fields get their values in order, so the number of values given so far is
// the index of the waiting field.
CZEL_Code& CZEL_Code::Set(CZEL_String const& coded) {
  bool pending = false;
  u32 counter = 0;
  u32 offset = 0;
  CFormatNode const* nodes = m_Nodes.GetBuf();
  for (u32 n = 0; n < m_Nodes.GetLength(); ++n) {
    if (nodes[n].m_Type == NODE_FIELD) {
      pending = true;
      continue;
    }
    CZEL_String const& literal = *static_cast<CZEL_String const*>(nodes[n].m_Data);
    u32 uiPos = 0;
    if (!coded.FindFromBegin(literal, &uiPos, 1, offset)) return *this;
    if (pending) {
      pending = false;
      m_Values[counter++] = coded.Mid(offset, uiPos - offset);
    }
    offset = uiPos + literal.GetLength();
  }
  if (pending && offset < coded.GetLength()) m_Values[counter] = coded.RightFromPos(offset);
  return *this;
}

CZEL_String CZEL_Code::GetString() const {
  CZEL_String sCode;
  CFormatNode const* nodes = m_Nodes.GetBuf();
  for (u32 n = 0; n < m_Nodes.GetLength(); ++n) {
    if (nodes[n].m_Type == NODE_LITERAL) {
      sCode += *static_cast<CZEL_String const*>(nodes[n].m_Data);
    } else {
      sCode += m_Values[*static_cast<u32 const*>(nodes[n].m_Data)];
    }
  }
  return sCode;
}
