// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
'use strict';

/** OpenStreetMap's tiles on Leaflet, which the page has loaded. WGS-84 throughout. */
(() => {
    const { LINES, MARKS, texts } = talvorMap;
    const TILES = 'https://tile.openstreetmap.org/{z}/{x}/{y}.png';
    const COPYRIGHT = '© <a href="https://www.openstreetmap.org/copyright" target="_blank">'
        + 'OpenStreetMap contributors</a>';

    const lines = {};
    const marks = {};
    let map = null;
    let tiles = null;

    function addLine(name, { color, width, opacity }) {
        const style = { color, opacity, weight: width, interactive: false };
        lines[name] = L.polyline([], style).addTo(map);
    }

    function makeMark(name, { image, size }, above) {
        const icon = L.icon({ iconUrl: image, iconSize: [size, size] });
        marks[name] = L.marker([0, 0], {
            icon, interactive: false, keyboard: false, zIndexOffset: 1000 * above,
        });
    }

    /** No tile is asked for before the view has a place of its own. */
    function showTiles() {
        if (!map.hasLayer(tiles))
            tiles.addTo(map);
    }

    talvorMap.use({
        create(element) {
            // A drag shows the line in the margins, too.
            map = L.map(element, {
                renderer: L.canvas({ padding: 0.5 }), trackResize: false, zoomControl: false,
            });
            map.setView([25, 10], 2);
            map.attributionControl.setPrefix(false);
            L.control.zoom({ zoomInTitle: texts.zoomIn, zoomOutTitle: texts.zoomOut }).addTo(map);
            L.control.scale({ imperial: false, maxWidth: 80 }).addTo(map);
            tiles = L.tileLayer(TILES, { attribution: COPYRIGHT, maxZoom: 19 });
            Object.keys(LINES).forEach((name) => addLine(name, LINES[name]));
            Object.keys(MARKS).forEach((name, index) => makeMark(name, MARKS[name], index));
        },
        point: (lng, lat) => L.latLng(lat, lng),
        drawLine(name, segments) {
            lines[name].setLatLngs(segments);
        },
        drawMark(name, point) {
            if (point)
                marks[name].setLatLng(point).addTo(map);
            else
                marks[name].remove();
        },
        centre(point, zoom) {
            map.setView(point, zoom, { animate: false });
            showTiles();
        },
        panTo(point) {
            map.panTo(point);
        },
        fit(southWest, northEast, { top, right, bottom, left }) {
            map.fitBounds([southWest, northEast], {
                paddingTopLeft: [left, top], paddingBottomRight: [right, bottom], animate: false,
            });
            showTiles();
        },
        bounds() {
            const view = map.getBounds();
            return {
                west: view.getWest(),
                south: view.getSouth(),
                east: view.getEast(),
                north: view.getNorth(),
            };
        },
        resized() {
            map.invalidateSize({ pan: true, animate: false });
        },
    });
})();
