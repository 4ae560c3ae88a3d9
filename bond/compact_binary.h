// Compact Binary, version 1: the bytes of a settings string before base64. EchoData's getXMLData and
// insertXMLData come here, with the records of echo/schema:
//
//     plax2::Data data;
//     data.prop.full = FULL_OUTPUT;                        // field 0, value 3
//     bond::Bytes bytes = bond::writeCompactBinary(data);  // 0A 10 06 00 00
//
//         0A             header: id 0, type Struct         prop
//            10          header: id 0, type Int32          prop.full
//               06       zigzag of 3
//                  00    Stop of Properties
//                     00 Stop of Data
//
// A record is a sequence of fields in ascending order of their ids. A field that has its schema default
// is left out; a nested record is always written. Nothing precedes the outermost record.
//
//     record     { header value } Stop
//                a derived record's bases come first, each closed by StopBase instead of Stop
//
//     header     bit 7 6 5   4 3 2 1 0
//                   i i i    t t t t t                            id 0 to 5
//                   1 1 0    t t t t t   iiiiiiii                 id 6 to 255
//                   1 1 1    t t t t t   iiiiiiii iiiiiiii        id 256 to 65535, low byte first
//
//     t                          value
//      0 Stop, 1 StopBase        none
//      2 Bool                    one byte, 0 or 1
//      3 UInt8, 14 Int8          one byte
//      4 UInt16, 5 UInt32,       varint
//      6 UInt64
//      15 Int16, 16 Int32,       varint of the zigzag number: 0, -1, 1, -2, 2 are 0, 1, 2, 3, 4
//      17 Int64                  an enumeration is an Int32
//      7 Float, 8 Double         4 or 8 bytes IEEE 754, low byte first
//      9 String                  varint n, n bytes UTF-8
//      18 WString                varint n, n units UTF-16, low byte first
//      10 Struct                 record
//      11 List, 12 Set           one byte with the elements' type in bits 4 to 0, varint n, n values
//      13 Map                    one byte with the keys' type, one with the values' type, varint n, n pairs
//
//     varint     seven bits a byte, lowest first; bit 7 is set if another byte follows.
//                A reader takes at most 3, 5 or 10 bytes for 16, 32 or 64 bits.
#pragma once

#include "bond/schema.h"

#include <boost/container/small_vector.hpp>

#include <cstddef>
#include <span>

namespace bond {

// What a record is written to. The records of this project fit without an allocation.
using Bytes = boost::container::small_vector<std::byte, 256>;

// Appends the record, an object of the type that `description` describes, to `bytes`.
void writeCompactBinary(const Struct& description, const void* record, Bytes& bytes);

template <class Record>
Bytes writeCompactBinary(const Record& record) {
    Bytes bytes;
    writeCompactBinary(structOf<Record>(), &record, bytes);
    return bytes;
}

// Reads the bytes into `record`, a fresh object of the type that `description` describes: fields that
// the bytes lack keep their default. Skipped without error:
//   - unknown fields, base records, and whatever follows the outermost Stop;
//   - a known field after one of the same or a higher id: of several values the first is used;
//   - a known field of another type, unless the wire type is a narrower number of the same kind: Int8 and
//     Int16 are read into an Int32, UInt8 and UInt16 into a UInt32, Float into a Double.
//
// Throws, with the record partly filled,
//   StreamException "Read out of bounds: <n> bytes requested, offset: <position>, length: <bytes>"
//   CoreException "Max recursion depth exceeded"   records and containers nested deeper than 64; the
//                                                  outermost record is the first level
//   CoreException "Unknown data type found"        a value of a type above 18, whose length is unknown.
//                                                  Not for a known field that is no record: it is treated
//                                                  as empty, as the reference implementation does
// The work is linear in the number of bytes, whatever lengths and counts they claim.
void readCompactBinary(const Struct& description, void* record, std::span<const std::byte> bytes);

template <class Record>
Record readCompactBinary(std::span<const std::byte> bytes) {
    Record record;
    readCompactBinary(structOf<Record>(), &record, bytes);
    return record;
}

}  // namespace bond
