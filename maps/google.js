// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
'use strict';

/** Google Maps. Its street map of mainland China is GCJ-02, the rest of the world WGS-84. */
(() => {
    const { LINES, MARKS } = talvorMap;
    const lines = {};
    const marks = {};
    let map = null;

    // The provider's script calls this global function if it refuses the key.
    window.gm_authFailure = () => talvorMap.fail('keyRefused');

    function makeLine(name, path) {
        const { color, width, opacity } = LINES[name];
        return new google.maps.Polyline({
            map,
            path,
            strokeColor: color,
            strokeWeight: width,
            strokeOpacity: opacity,
            clickable: false,
            zIndex: Object.keys(LINES).indexOf(name),
        });
    }

    function makeMark(name, { image, size }, zIndex) {
        const icon = {
            url: image,
            scaledSize: new google.maps.Size(size, size),
            anchor: new google.maps.Point(size / 2, size / 2),
        };
        marks[name] = new google.maps.Marker({ icon, zIndex, clickable: false, optimized: false });
    }

    talvorMap.use({
        key: 'google',
        controls: 'button',
        scriptUrl: (key, language) => 'https://maps.googleapis.com/maps/api/js?v=weekly'
            + `&loading=async&callback=talvorMap.providerReady&language=${language}&key=${key}`,
        create(element) {
            map = new google.maps.Map(element, {
                center: { lat: 25, lng: 10 },
                zoom: 2,
                backgroundColor: 'rgb(37, 37, 40)',
                disableDefaultUI: true,
                zoomControl: true,
                scaleControl: true,
                gestureHandling: 'greedy',
            });
            Object.keys(MARKS).forEach((name, index) => makeMark(name, MARKS[name], index));
        },
        point(pointLng, pointLat) {
            const [lng, lat] = talvorMap.wgsToGcj(pointLng, pointLat);
            return { lng, lat };
        },
        at: (lng, lat) => ({ lng, lat }),
        drawLine(name, segments) {
            (lines[name] || []).forEach((line) => line.setMap(null));
            lines[name] = segments.map((segment) => makeLine(name, segment));
        },
        drawMark(name, point) {
            marks[name].setPosition(point);
            marks[name].setMap(point ? map : null);
        },
        centre(point, zoom) {
            map.setCenter(point);
            map.setZoom(zoom);
        },
        panTo(point) {
            map.panTo(point);
        },
        fit(southWest, northEast, padding) {
            map.fitBounds(new google.maps.LatLngBounds(southWest, northEast), padding);
        },
        bounds() {
            const view = map.getBounds();
            return view ? view.toJSON() : null;
        },
    });
})();
