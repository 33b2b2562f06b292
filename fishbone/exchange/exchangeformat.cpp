// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <fishbone/exchange/exchangeformat.h>

namespace ExchangeFormats {

const std::vector<const ExchangeFormat *> &all()
{
    static const std::vector<const ExchangeFormat *> formats{
        &json, &markdown, &text, &opml, &freeMind, &mermaid,
        &csv,  &xmind,    &xlsx, &org,  &drawIo,   &plantUml};
    return formats;
}

const ExchangeFormat &of(DiagramExchange::Format format)
{
    return *all()[std::size_t(format)];
}

} // namespace ExchangeFormats
