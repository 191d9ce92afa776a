// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
'use strict';

/** As much of the Google Maps script as the map page uses. Keeps what is on the map. */
(() => {
    const lines = new Set();
    const marks = new Set();
    let view = { west: -180, south: -60, east: 180, north: 70 };
    const callback = new URL(document.currentScript.src).searchParams.get('callback');

    class Overlay {
        constructor(kept, options) {
            this.kept = kept;
            Object.assign(this, options);
            this.setMap(options.map);
        }

        setMap(map) {
            if (map)
                this.kept.add(this);
            else
                this.kept.delete(this);
        }
    }

    class Polyline extends Overlay {
        constructor(options) {
            super(lines, options);
        }
    }

    class Marker extends Overlay {
        constructor(options) {
            super(marks, options);
        }

        setPosition(position) {
            this.position = position;
        }
    }

    class LatLngBounds {
        constructor(southWest, northEast) {
            const wrapped = (degrees) => degrees - 360 * Math.round(degrees / 360);
            this.view = {
                west: wrapped(southWest.lng), south: southWest.lat,
                east: wrapped(northEast.lng), north: northEast.lat,
            };
        }

        toJSON() {
            return this.view;
        }
    }

    class Map {
        setCenter({ lng, lat }) {
            view = { west: lng - 0.01, south: lat - 0.01, east: lng + 0.01, north: lat + 0.01 };
        }

        setZoom() {}

        panTo(point) {
            this.setCenter(point);
        }

        fitBounds(bounds) {
            view = bounds.view;
        }

        getBounds() {
            return new LatLngBounds({ lng: view.west, lat: view.south },
                { lng: view.east, lat: view.north });
        }
    }

    class Size {}
    class Point {}
    window.google = { maps: { Map, Polyline, Marker, LatLngBounds, Size, Point } };

    window.standIn = {
        answer: () => callback.split('.').reduce((object, name) => object[name], window)(),
        refuseKey: () => window.gm_authFailure(),
        /** How many points each line has, and the image of each mark. */
        report: () => ({
            lengths: [...lines].map((line) => line.path.length).sort(),
            marks: [...marks].map((mark) => mark.icon.url).sort(),
        }),
    };
})();
