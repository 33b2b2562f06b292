// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#include <app/panels/detailsfield.h>

#include <utility>

DetailsField::DetailsField(const char *key, Language::Text label, Sharing sharing, QObject *parent)
    : QObject(parent)
    , m_key(QLatin1String(key))
    , m_label(std::move(label))
    , m_sharing(sharing)
{
}
