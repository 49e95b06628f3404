// SPDX-License-Identifier: Apache-2.0
// CZEL_IpAddress parsing and printing beside the C library's inet_pton and
// inet_ntop on the same addresses, in the same run. The texts differ only
// where the two read differently: CZEL_IpAddress reads IPv6 groups in
// decimal, inet_pton in hexadecimal, so each IPv6 text is written so that
// its reader sees the same eight groups. The standard forms read and print
// the same texts as the C library.

#include <LZEL_Core/net/CZEL_IpAddress.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <arpa/inet.h>
#include <benchmark/benchmark.h>
#include <netinet/in.h>

#include <cstddef>

namespace {

char const* const kV4[] = {"192.168.0.1", "10.0.0.254", "172.16.31.7", "255.255.255.255"};
char const* const kV6Decimal[] = {"8193:3512:0:0:0:0:0:1", "65152:0:0:0:514:45823:65113:7",
                                  "4660:22136:39612:57072:4660:22136:39612:57072",
                                  "1:2:3:4:5:6:7:8"};
char const* const kV6Hex[] = {"2001:db8:0:0:0:0:0:1", "fe80:0:0:0:202:b2ff:fe59:7",
                              "1234:5678:9abc:def0:1234:5678:9abc:def0", "1:2:3:4:5:6:7:8"};
// Standard texts, shortened where the canonical form shortens them.
char const* const kV6Standard[] = {"2001:db8::1", "fe80::202:b2ff:fe59:7",
                                   "1234:5678:9abc:def0:1234:5678:9abc:def0", "::ffff:c000:201"};

template <std::size_t N>
void ZelParse(benchmark::State& state, char const* const (&texts)[N]) {
  CZEL_String strings[N];
  for (std::size_t i = 0; i < N; ++i) strings[i] = texts[i];
  CZEL_IpAddress address;
  std::size_t i = 0;
  for (auto _ : state) {
    address = strings[i++ % N];
    benchmark::DoNotOptimize(address.GetDigit(0));
  }
}

template <std::size_t N>
void ZelParseStandard(benchmark::State& state, char const* const (&texts)[N]) {
  CZEL_String strings[N];
  for (std::size_t i = 0; i < N; ++i) strings[i] = texts[i];
  CZEL_IpAddress address;
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(address.ParseStandard(strings[i++ % N]));
    benchmark::DoNotOptimize(address.GetDigit(0));
  }
}

template <std::size_t N>
void PtonParse(benchmark::State& state, int family, char const* const (&texts)[N]) {
  unsigned char bytes[sizeof(in6_addr)];
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(inet_pton(family, texts[i++ % N], bytes));
    benchmark::DoNotOptimize(bytes[0]);
  }
}

template <std::size_t N>
void ZelPrint(benchmark::State& state, char const* const (&texts)[N]) {
  CZEL_IpAddress addresses[N];
  for (std::size_t i = 0; i < N; ++i) addresses[i] = CZEL_String(texts[i]);
  std::size_t i = 0;
  for (auto _ : state) {
    CZEL_String const text = addresses[i++ % N].ToString();
    benchmark::DoNotOptimize(text.GetStringC());
  }
}

template <std::size_t N>
void ZelPrintStandard(benchmark::State& state, char const* const (&texts)[N]) {
  CZEL_IpAddress addresses[N];
  for (std::size_t i = 0; i < N; ++i) addresses[i].ParseStandard(CZEL_String(texts[i]));
  std::size_t i = 0;
  for (auto _ : state) {
    CZEL_String const text = addresses[i++ % N].ToStandardString();
    benchmark::DoNotOptimize(text.GetStringC());
  }
}

template <std::size_t N>
void NtopPrint(benchmark::State& state, int family, char const* const (&texts)[N]) {
  unsigned char bytes[N][sizeof(in6_addr)];
  for (std::size_t i = 0; i < N; ++i) inet_pton(family, texts[i], bytes[i]);
  char text[INET6_ADDRSTRLEN];
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(inet_ntop(family, bytes[i++ % N], text, sizeof text));
  }
}

void BM_ParseV4_Zel(benchmark::State& state) { ZelParse(state, kV4); }
void BM_ParseV4_InetPton(benchmark::State& state) { PtonParse(state, AF_INET, kV4); }
void BM_ParseV6_Zel(benchmark::State& state) { ZelParse(state, kV6Decimal); }
void BM_ParseV6_InetPton(benchmark::State& state) { PtonParse(state, AF_INET6, kV6Hex); }
void BM_PrintV4_Zel(benchmark::State& state) { ZelPrint(state, kV4); }
void BM_PrintV4_InetNtop(benchmark::State& state) { NtopPrint(state, AF_INET, kV4); }
void BM_PrintV6_Zel(benchmark::State& state) { ZelPrint(state, kV6Decimal); }
void BM_PrintV6_InetNtop(benchmark::State& state) { NtopPrint(state, AF_INET6, kV6Hex); }
void BM_ParseStandardV4_Zel(benchmark::State& state) { ZelParseStandard(state, kV4); }
void BM_ParseStandardV6_Zel(benchmark::State& state) { ZelParseStandard(state, kV6Standard); }
void BM_ParseStandardV6_InetPton(benchmark::State& state) {
  PtonParse(state, AF_INET6, kV6Standard);
}
void BM_PrintStandardV4_Zel(benchmark::State& state) { ZelPrintStandard(state, kV4); }
void BM_PrintStandardV6_Zel(benchmark::State& state) { ZelPrintStandard(state, kV6Standard); }
void BM_PrintStandardV6_InetNtop(benchmark::State& state) {
  NtopPrint(state, AF_INET6, kV6Standard);
}

}  // namespace

BENCHMARK(BM_ParseV4_Zel);
BENCHMARK(BM_ParseV4_InetPton);
BENCHMARK(BM_ParseV6_Zel);
BENCHMARK(BM_ParseV6_InetPton);
BENCHMARK(BM_PrintV4_Zel);
BENCHMARK(BM_PrintV4_InetNtop);
BENCHMARK(BM_PrintV6_Zel);
BENCHMARK(BM_PrintV6_InetNtop);
BENCHMARK(BM_ParseStandardV4_Zel);
BENCHMARK(BM_ParseStandardV6_Zel);
BENCHMARK(BM_ParseStandardV6_InetPton);
BENCHMARK(BM_PrintStandardV4_Zel);
BENCHMARK(BM_PrintStandardV6_Zel);
BENCHMARK(BM_PrintStandardV6_InetNtop);
