// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
'use strict';

/**
 * Baidu Maps. Its datum is BD-09, and one plane covers the world: the step from GCJ-02 is made
 * everywhere, as it is a property of the plane, while GCJ-02 itself differs from WGS-84 in
 * mainland China only.
 */
(() => {
    const { LINES, MARKS } = talvorMap;
    const lines = {};
    const marks = {};
    let map = null;

    // The provider's script reports a refused key in an alert box, which would block the player.
    window.alert = () => talvorMap.fail('keyRefused');

    function makeLine(name, points) {
        const { color, width, opacity } = LINES[name];
        return new BMap.Polyline(points, {
            strokeColor: color, strokeWeight: width, strokeOpacity: opacity, enableClicking: false,
        });
    }

    function makeMark(name, { image, size }, zIndex) {
        const icon = new BMap.Icon(image, new BMap.Size(size, size));
        icon.setImageSize(new BMap.Size(size, size));
        marks[name] = new BMap.Marker(new BMap.Point(0, 0), { icon, enableClicking: false });
        marks[name].setZIndex(zIndex);
        marks[name].hide();
        map.addOverlay(marks[name]);
    }

    talvorMap.use({
        key: 'baidu',
        controls: '.BMap_stdMpCtrl',
        scriptUrl: (key) => 'https://api.map.baidu.com/api?v=3.0'
            + `&callback=talvorMap.providerReady&ak=${key}`,
        create(element) {
            map = new BMap.Map(element);
            map.centerAndZoom(new BMap.Point(105, 35), 5);
            map.enableScrollWheelZoom(true);
            map.addControl(new BMap.NavigationControl({ type: BMAP_NAVIGATION_CONTROL_ZOOM }));
            map.addControl(new BMap.ScaleControl());
            Object.keys(MARKS).forEach((name, index) => makeMark(name, MARKS[name], index));
        },
        point(pointLng, pointLat) {
            const [lng, lat] = talvorMap.gcjToBd(...talvorMap.wgsToGcj(pointLng, pointLat));
            return new BMap.Point(talvorMap.shortWay(lng), lat);
        },
        drawLine(name, segments) {
            (lines[name] || []).forEach((line) => map.removeOverlay(line));
            lines[name] = segments.map((segment) => makeLine(name, segment));
            lines[name].forEach((line) => map.addOverlay(line));
        },
        drawMark(name, point) {
            if (point) {
                marks[name].setPosition(point);
                marks[name].show();
            } else {
                marks[name].hide();
            }
        },
        centre(point, zoom) {
            map.centerAndZoom(point, zoom);
        },
        panTo(point) {
            map.panTo(point);
        },
        fit(southWest, northEast, { top, right, bottom, left }) {
            // The map ends at the 180th meridian: what lies across it is measured elsewhere.
            const isAcross = southWest.lng < -180 || northEast.lng > 180;
            const shift = isAcross ? (southWest.lng + northEast.lng) / 2 : 0;
            const corners = [southWest, northEast]
                .map(({ lng, lat }) => new BMap.Point(lng - shift, lat));
            const margins = [top, right, bottom, left];
            const { center, zoom } = map.getViewport(corners, { margins });
            const lng = talvorMap.shortWay(center.lng + shift);
            map.centerAndZoom(new BMap.Point(lng, center.lat), zoom);
        },
        bounds() {
            const view = map.getBounds();
            const southWest = view.getSouthWest();
            const northEast = view.getNorthEast();
            return {
                west: southWest.lng,
                south: southWest.lat,
                east: northEast.lng,
                north: northEast.lat,
            };
        },
    });
})();
