// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
'use strict';

/** As much of the Baidu Maps script as the map page uses. Keeps what is on the map. */
(() => {
    const overlays = new Set();
    let view = [{ lng: 70, lat: 15 }, { lng: 140, lat: 55 }];
    const callback = new URL(document.currentScript.src).searchParams.get('callback');

    class Point {
        constructor(lng, lat) {
            if (Math.abs(lng) > 180)
                throw new RangeError('beyond the end of the map');
            this.lng = lng;
            this.lat = lat;
        }
    }

    class Polyline {
        constructor(path) {
            this.path = path;
        }
    }

    class Icon {
        constructor(url) {
            this.url = url;
        }

        setImageSize() {}
    }

    class Marker {
        constructor(position, { icon }) {
            this.position = position;
            this.icon = icon;
            this.isShown = true;
        }

        setPosition(position) {
            this.position = position;
        }

        setZIndex() {}

        show() {
            this.isShown = true;
        }

        hide() {
            this.isShown = false;
        }
    }

    class Map {
        /** The zoom is the number of views that go round the earth, not the provider's. */
        centerAndZoom({ lng, lat }, zoom) {
            const half = 180 / (zoom > 20 ? zoom : 20000);
            const wrapped = (degrees) => degrees - 360 * Math.round(degrees / 360);
            view = [new Point(wrapped(lng - half), lat - half),
                new Point(wrapped(lng + half), lat + half)];
        }

        panTo(point) {
            this.centerAndZoom(point);
        }

        getViewport([southWest, northEast]) {
            const lng = (southWest.lng + northEast.lng) / 2;
            const lat = (southWest.lat + northEast.lat) / 2;
            return { center: new Point(lng, lat), zoom: 360 / (northEast.lng - southWest.lng) };
        }

        getBounds() {
            return { getSouthWest: () => view[0], getNorthEast: () => view[1] };
        }

        addOverlay(overlay) {
            overlays.add(overlay);
        }

        removeOverlay(overlay) {
            overlays.delete(overlay);
        }

        enableScrollWheelZoom() {}

        addControl() {}
    }

    class Control {}
    window.BMAP_NAVIGATION_CONTROL_ZOOM = 3;
    window.BMap = {
        Map, Point, Polyline, Icon, Marker, Size: Control, NavigationControl: Control,
        ScaleControl: Control,
    };

    window.standIn = {
        answer: () => callback.split('.').reduce((object, name) => object[name], window)(),
        refuseKey: () => window.alert('APP不存在，AK有误请检查再重试'),
        /** How many points each line has, and the image of each mark. */
        report: () => ({
            lengths: [...overlays].filter((overlay) => overlay.path)
                .map((line) => line.path.length).sort(),
            marks: [...overlays].filter((overlay) => overlay.isShown)
                .map((mark) => mark.icon.url).sort(),
        }),
    };
})();
