// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
'use strict';

/** OpenStreetMap's tiles on Leaflet, which the page has loaded. WGS-84 throughout. */
(() => {
    const { LINES, MARKS, texts } = talvorMap;
    const TILES = 'https://tile.openstreetmap.org/{z}/{x}/{y}.png';
    const COPYRIGHT = '© <a href="https://www.openstreetmap.org/copyright" target="_blank">'
        + 'OpenStreetMap contributors</a>';

    // The servers are run on donations: what fails is asked for again, but ever more rarely.
    const FIRST_RETRY_MS = 10000;
    const LAST_RETRY_MS = 300000;
    const NETWORK_START_MS = 1000;

    const lines = {};
    const marks = {};
    let map = null;
    let tiles = null;
    const missing = new Map(); // images of tiles that failed, and the tiles' coordinates
    let retryMs = FIRST_RETRY_MS;
    let retryTimer = 0;

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

    function stopRetrying() {
        clearTimeout(retryTimer);
        retryTimer = 0;
    }

    function retryIn(ms) {
        stopRetrying();
        if (missing.size > 0)
            retryTimer = setTimeout(retry, ms);
    }

    function retry() {
        retryTimer = 0;
        retryMs = Math.min(2 * retryMs, LAST_RETRY_MS);
        missing.forEach((coords, image) => { image.src = tiles.getTileUrl(coords); });
    }

    function onTileError({ tile, coords }) {
        missing.set(tile, coords);
        talvorMap.note('tilesMissing');
        if (!retryTimer)
            retryIn(retryMs);
    }

    function onTileGone({ tile }) {
        missing.delete(tile);
        if (missing.size > 0)
            return;
        talvorMap.note();
        stopRetrying();
    }

    /** One that comes after some that did not shows that the servers are in reach again. */
    function onTileLoad(event) {
        onTileGone(event);
        if (retryMs !== FIRST_RETRY_MS)
            retryIn(FIRST_RETRY_MS);
        retryMs = FIRST_RETRY_MS;
    }

    talvorMap.use({
        controls: '.leaflet-control-zoom',
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
            tiles.on({
                tileerror: onTileError, tileload: onTileLoad, tileunload: onTileGone,
            });
            window.addEventListener('online', () => retryIn(NETWORK_START_MS));
            Object.keys(LINES).forEach((name) => addLine(name, LINES[name]));
            Object.keys(MARKS).forEach((name, index) => makeMark(name, MARKS[name], index));
        },
        point: (lng, lat) => L.latLng(lat, lng),
        at: (lng, lat) => L.latLng(lat, lng),
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
