// SPDX-FileCopyrightText: 2026 The Fishbone authors
// SPDX-License-Identifier: MIT

#pragma once

#include <fishbone/model/fishmodel.h>

#include <fishbone/model/changerecord.h>
#include <fishbone/model/documentlist.h>
#include <fishbone/model/fishmodelchange.h>
#include <fishbone/model/fishmodeldocuments.h>
#include <fishbone/model/fishmodelheads.h>
#include <fishbone/model/fishmodelloading.h>
#include <fishbone/model/fishmodellookup.h>
#include <fishbone/model/fishmodelmoves.h>
#include <fishbone/model/fishmodelpresentation.h>
#include <fishbone/model/fishmodelrows.h>

/** The state of a model, and the parts that carry out its operations. */
struct FISHBONE_NO_EXPORT FishModel::Private
{
    Q_DISABLE_COPY(Private)

    explicit Private(FishModel &model)
        : documents(&model)
        , announcer(model)
        , rows(model)
        , moves(model)
        , listing(model)
        , heads(model)
        , loading(model)
        , lookup(model)
        , presentation(model)
    {
    }

    ChangeRecord changes;
    DocumentList documents;
    Announcer announcer;
    Rows rows;
    Moves moves;
    Documents listing;
    Heads heads;
    Loading loading;
    Lookup lookup;
    Presentation presentation;
};
